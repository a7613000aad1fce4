#pragma once

#include <QDialog>
#include <functional>

// Shows `form` modally over `owner` and returns when it has closed.
int ShowModal(QDialog& form, QWidget* owner);

// For tests: a driver works a modal window while it is open (it is called
// once the window shows, inside its event loop). Whatever the driver leaves
// open is closed when it returns, so no test waits on a window.
using ModalDriver = std::function<void(QDialog& form)>;
void SetModalDriver(ModalDriver driver);             // empty: a person drives
