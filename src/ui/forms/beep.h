#pragma once

// The system beep that answers a refused key. Tests count them.
void Beep();
int BeepCount();
