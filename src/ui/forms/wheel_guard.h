#pragma once

class QWidget;

// A closed list or a box without the keyboard focus lets the mouse wheel pass
// to the window behind it, so scrolling over the window changes no value. A
// click or Tab gives it the focus first; then the wheel works as usual.
void IgnoreWheelUnlessFocused(QWidget& control);
