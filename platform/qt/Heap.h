#pragma once

// Has the memory of large things, such as pictures, given back as soon as they go, and keeps the rest of it together.
// To be called once, before there is any thread.
void SettleHeap();
