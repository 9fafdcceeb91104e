#pragma once

// Settles how a program runs that nobody sees: what it draws with, what it keeps quiet about, and how its processes
// keep their memory. To be called before its application object is made.
void SettleUnseen();
