#include "data/dates.h"

namespace {

bool IsLeapYear(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

}  // namespace

bool DateExists(int day, int month, int year)
{
    constexpr int daysIn[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || month < 1 || month > 12 || day < 1)
        return false;
    const int last = daysIn[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
    return day <= last;
}
