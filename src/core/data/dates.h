#pragma once

// Whether day/month/year names a day of the calendar the game counts in:
// months of their own length, 29 February in leap years only, years from 1.
bool DateExists(int day, int month, int year);
