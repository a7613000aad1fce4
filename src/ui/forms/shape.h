#pragma once

#include <QColor>
#include <QWidget>

// A filled rectangle, such as a progress bar whose width the code sets.
class Shape : public QWidget {
public:
    explicit Shape(const QColor& fill, QWidget* parent = nullptr);
    void SetFill(const QColor& fill);
};
