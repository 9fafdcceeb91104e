#pragma once

class McListBox;

// Dresses a list as the operator's forms have their lists, in the colours that the look gives.
void LookLikeTheDesk(McListBox& list);
