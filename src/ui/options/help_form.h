#pragma once

#include <QDialog>
#include <array>

class QLabel;
class QPushButton;

// The table of the ranges a new player's skills must lie in.
class HelpForm : public QDialog {
    Q_OBJECT
public:
    explicit HelpForm(QWidget* parent = nullptr);

    // OK closes the window.
    void Command1_Click();

    QLabel* Label1 = nullptr;
    std::array<QLabel*, 6> Label2{};  // the skills
    std::array<QLabel*, 6> Label3{};  // their ranges
    QPushButton* Command1 = nullptr;
};
