#pragma once

#include <QDialog>
#include <array>

class QLabel;
class QPushButton;

// The About window: the program's name, version and thanks.
class AboutForm : public QDialog {
    Q_OBJECT
public:
    explicit AboutForm(QWidget* parent = nullptr);

    // OK closes the window; it answers Enter and Escape alike.
    void cmdOK_Click();

    QLabel* Image1 = nullptr;
    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* Label2 = nullptr;
    std::array<QLabel*, 2> Label1{};  // the credits
    QPushButton* cmdOK = nullptr;
};
