// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calendar/frmabout.h"

#include "platform/shell.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

const QString FrmAbout::ContactAddress = QStringLiteral("anglers@quillmere.example.org");
const QString FrmAbout::WebAddress = QStringLiteral("https://quillmere.example.org");

namespace {
// A label that reads as a link and reports clicks instead of following them itself.
QLabel* LinkLabel(const QString& text, QWidget* parent)
{
    auto* label =
        new QLabel(QStringLiteral("<a href=\"#\">%1</a>").arg(text.toHtmlEscaped()), parent);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    return label;
}
} // namespace

FrmAbout::FrmAbout(QWidget* parent, Opener opener)
    : QDialog(parent), Open(opener ? std::move(opener) : [](const QString& op, const QString& f) {
          return OpenLink(op, f);
      })
{
    setWindowTitle(tr("About Quillmere"));
    lblTitle = new QLabel(tr("<b style=\"font-size:16pt\">Quillmere</b><br>"
                             "The fishing calendar"),
                          this);
    lblVersion = new QLabel(tr("Version %1").arg(QStringLiteral(QUILLMERE_VERSION)), this);
    Email = new QLabel(tr("Email"), this);
    lblEmail = LinkLabel(ContactAddress, this);
    lblWeb = LinkLabel(WebAddress, this);
    lblCredits = new QLabel(tr("City list: GeoNames (geonames.org), licensed under "
                               "CC BY 4.0"),
                            this);
    cmdOK = new QPushButton(tr("OK"), this);
    cmdOK->setDefault(true);

    auto* grid = new QGridLayout(this);
    grid->addWidget(lblTitle, 0, 0, 1, 2);
    grid->addWidget(lblVersion, 1, 0, 1, 2);
    grid->addWidget(Email, 2, 0);
    grid->addWidget(lblEmail, 2, 1);
    grid->addWidget(lblWeb, 3, 0, 1, 2);
    grid->addWidget(lblCredits, 4, 0, 1, 2);
    grid->addWidget(cmdOK, 5, 1, Qt::AlignRight);

    connect(lblWeb, &QLabel::linkActivated, this, &FrmAbout::lblWeb_Click);
    connect(lblEmail, &QLabel::linkActivated, this, &FrmAbout::lblEmail_Click);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void FrmAbout::lblWeb_Click() { Open(QStringLiteral("open"), WebAddress); }

void FrmAbout::lblEmail_Click() { Open(QStringLiteral("open"), "Mailto:" + ContactAddress); }
