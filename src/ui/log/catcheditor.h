// SPDX-License-Identifier: GPL-3.0-or-later
// "Catch": one catch of a day, typed in the units chosen in Options. What is typed is what is
// stored, or the message under the fields says why not and the field keeps the focus. OK
// writes the catch (one transaction under the year's lock) and copies its new photos into
// the folder; leaving with changes asks first.
#pragma once

#include "logdb/catches.h"
#include "logdb/logstate.h"

#include <QDialog>

#include <functional>
#include <optional>

class PhotoThumbnails;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

class CatchEditor : public QDialog {
    Q_OBJECT

public:
    // start: the catch to edit, or a new one with its day's Date and no Id.
    CatchEditor(const LogContext& context, const QString& yearFile, const Catch& start,
                PhotoThumbnails& thumbnails, QWidget* parent = nullptr);

    // Photo files to copy in with OK, shown at once.
    void AddPhotoFiles(const QStringList& files);

    // Handlers, connected explicitly and callable from tests.
    void cmdOK_Click();
    void cmdAddPhoto_Click();
    void cmdRemovePhoto_Click();
    void PhotoList_DblClick(int row);

    // The catch as typed; nothing, with Message showing why, while a field cannot be kept.
    std::optional<Catch> TypedCatch();
    // The catch as written by OK.
    const Catch& Saved() const { return Result; }

    QLineEdit* TimeBox = nullptr;
    QLineEdit* SpeciesBox = nullptr;
    QSpinBox* CountBox = nullptr;
    QLineEdit* LengthBox = nullptr;
    QLineEdit* WeightBox = nullptr;
    QCheckBox* ReleasedCheck = nullptr;
    QLineEdit* BaitBox = nullptr;
    QComboBox* MethodBox = nullptr;
    QLineEdit* SpotBox = nullptr;
    QLineEdit* LatitudeBox = nullptr;
    QLineEdit* LongitudeBox = nullptr;
    QLineEdit* WaterBox = nullptr;
    QLineEdit* AirBox = nullptr;
    QComboBox* WindBox = nullptr;
    QComboBox* SkyBox = nullptr;
    QPlainTextEdit* NoteBox = nullptr;
    QListWidget* PhotoList = nullptr;
    QPushButton* cmdAddPhoto = nullptr;
    QPushButton* cmdRemovePhoto = nullptr;
    QLabel* Message = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

    // Asks for photo files; empty when the user cancels. Tests put their own in its place.
    std::function<QStringList()> ChoosePhotoFiles;

protected:
    void reject() override; // Cancel, Escape and the close button

private:
    void BuildControls();
    QWidget* BuildPhotoPanel();
    void ShowCatch(const Catch& c);
    void ShowPhoto(const QString& stored);
    // Copies the pending photo files in; false, with a message, when one could not be.
    bool CopyNewPhotos(Catch& c);
    // The catch as typed, or the field that cannot be kept and why.
    std::optional<Catch> ReadFields(QWidget*& field, QString& why) const;
    bool Changed() const;

    LogContext Ctx;
    QString YearFile;
    Catch Start;
    Catch Result;
    PhotoThumbnails& Thumbnails;
};
