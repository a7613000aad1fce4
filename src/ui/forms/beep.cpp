#include "forms/beep.h"

#include <QApplication>

namespace {
int beeps = 0;
}

void Beep()
{
    ++beeps;
    QApplication::beep();
}

int BeepCount()
{
    return beeps;
}
