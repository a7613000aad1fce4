#pragma once

#include <QRect>

// Window layouts are drawn in twips (1440 to the inch, 15 to a pixel on a
// 96 dpi screen). These turn them into pixels, scaled up when the toolkit's
// font is larger than the 8 point font the layouts were drawn for.
int Twips(int twips);
QRect TwipRect(int left, int top, int width, int height);
QSize TwipSize(int width, int height);
