#pragma once

#include <QLabel>
#include <QPixmap>

// A picture scaled to its rectangle, with a hand pointer, that says when it
// is clicked.
class ClickablePicture : public QLabel {
    Q_OBJECT
public:
    explicit ClickablePicture(const QPixmap& picture, QWidget* parent = nullptr);

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
