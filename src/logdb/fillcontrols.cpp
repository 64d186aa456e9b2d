// The enabled state of the log windows' controls, kept apart from the fill so that the
// command line links the fill without any widget.
#include "logdb/filldata.h"

#include <QAction>
#include <QWidget>

void DisableControl(QWidget* control) { control->setEnabled(false); }
void EnableControl(QWidget* control) { control->setEnabled(true); }
void DisableControl(QAction* control) { control->setEnabled(false); }
void EnableControl(QAction* control) { control->setEnabled(true); }
