#pragma once

#include <QDialog>

// The table of the ranges a new player's skills must lie in.
class HelpWindow : public QDialog {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent = nullptr);
};
