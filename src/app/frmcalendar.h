// The main month window. Closing it (or "E&xit") records its position and saves the settings.
#pragma once

#include <QMainWindow>

struct AppState;
class QAction;

class FrmCalendar : public QMainWindow {
    Q_OBJECT
  public:
    explicit FrmCalendar(AppState& app, QWidget* parent = nullptr);

    // Handlers, connected explicitly and callable from tests.
    void Form_Load();
    void mnuexit_Click();

    QAction* mnuexit = nullptr;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void RecordPosition();

    AppState& App;
};
