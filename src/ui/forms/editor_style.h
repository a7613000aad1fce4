#pragma once

#include <QProxyStyle>

// The style Qt would choose for the editor, except that the arrow a menu or
// tool bar shows when its items do not fit is read only when a bar first
// draws it. Qt reads it for every bar as the bar is made, and reading its
// PNG asks every image plugin first: a few milliseconds of each start, for
// an arrow the main window, a fixed size, never shows.
class EditorStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    // Puts the editor's style over the one the application would use, so a
    // -style argument or QT_STYLE_OVERRIDE still holds.
    static void Install();

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};
