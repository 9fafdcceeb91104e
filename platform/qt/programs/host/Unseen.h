#pragma once

// Settles how a program runs that nobody sees: what it draws with, and what it keeps quiet about. To be called before
// its application object is made.
void SettleUnseen();
