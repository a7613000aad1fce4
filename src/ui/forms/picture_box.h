#pragma once

#include <QLabel>
#include <QPixmap>

// A picture scaled to its rectangle that takes a click, with a hand pointer.
class PictureBox : public QLabel {
    Q_OBJECT
public:
    explicit PictureBox(const QPixmap& picture, QWidget* parent = nullptr);

signals:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
