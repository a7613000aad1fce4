#include "forms/editor_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QStyleOption>
#include <QWidget>
#include <optional>

namespace {

// An icon of the style's that is asked for the first time it is drawn.
class IconOnFirstUse : public QIconEngine {
public:
    IconOnFirstUse(const QStyle& style, QStyle::StandardPixmap which, Qt::LayoutDirection direction)
        : style_(style), which_(which)
    {
        option_.direction = direction;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        Icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Icon().actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new IconOnFirstUse(*this); }

private:
    const QIcon& Icon()
    {
        if (!icon_)
            icon_ = style_.standardIcon(which_, &option_);
        return *icon_;
    }

    const QStyle& style_;
    QStyle::StandardPixmap which_;
    QStyleOption option_;
    std::optional<QIcon> icon_;
};

}  // namespace

void EditorStyle::Install()
{
    QApplication::setStyle(new EditorStyle(QApplication::style()));
}

QIcon EditorStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    if (which != SP_ToolBarHorizontalExtensionButton && which != SP_ToolBarVerticalExtensionButton)
        return QProxyStyle::standardIcon(which, option, widget);
    const Qt::LayoutDirection direction =
        option ? option->direction : widget ? widget->layoutDirection() : QGuiApplication::layoutDirection();
    return QIcon(new IconOnFirstUse(*baseStyle(), which, direction));
}
