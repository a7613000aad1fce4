#pragma once

#include <QRect>

// The windows are laid out as they were designed, in twips: 1440 to the
// inch, 15 to a pixel on a 96 dpi screen. This is the one place that knows
// it: it turns the design's measurements into pixels, scaled up alike when
// the toolkit's font is larger than the 8 point font the design was drawn
// for, so that every caption still fits.
int DesignPixels(int designed);
// Edges are rounded rather than sizes, so controls that touch in the design
// still touch in pixels.
QRect DesignRect(const QRect& designed);
QSize DesignSize(const QSize& designed);
