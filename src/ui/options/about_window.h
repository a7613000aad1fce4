#pragma once

#include <QDialog>

// The About window: the program's name, version and thanks. OK closes it; it
// answers Enter and Escape alike.
class AboutWindow : public QDialog {
    Q_OBJECT
public:
    explicit AboutWindow(QWidget* parent = nullptr);
};
