#pragma once

#include <functional>

class QWidget;

// Runs `work` once `window` has been painted for the first time, as soon as
// the event loop is free again: what a start need not do before the user
// sees the window.
void AfterFirstPaint(QWidget& window, std::function<void()> work);
