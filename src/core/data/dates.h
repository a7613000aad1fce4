#pragma once

#include <string>

// A day of the calendar: a player's date of birth, or "today" for the ages,
// handed in so that a result does not depend on the clock.
struct CalendarDay {
    int year = 0;
    int month = 0;
    int day = 0;
};

// Whether day/month/year names a day of the calendar the game counts in:
// months of their own length, 29 February in leap years only, years from 1.
bool DateExists(int day, int month, int year);

// "14/3/1990": day/month/year, as the windows write a date.
std::string DateText(int day, int month, int year);

// A number that orders days as the calendar does: year, then month, then day.
int DayOrder(const CalendarDay& date);
