#pragma once

#include <QStyle>
#include <QToolBar>

class QLabel;

// A strip under the menu with an icon and a message, for what the user
// should know about the game as a whole. Most starts never show one, so its
// icon is looked up in the icon theme, which is slow, when it first shows.
class NoticeBar : public QToolBar {
    Q_OBJECT
public:
    NoticeBar(const char* name, QStyle::StandardPixmap icon, QWidget* parent);

    QLabel* message = nullptr;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QStyle::StandardPixmap iconKind_;
    QLabel* icon_ = nullptr;
};
