#pragma once

#include <string>

class Form;
class ListView;

// Puts the form in the middle of the primary display.
void CentreForm(Form& form);

// Hands the form to the pointer; let go, it snaps back to the middle: it can be pulled up and down only.
void DragForm(Form& form);

// Looks for the first row whose text is `text`, case ignored. A row that is found is scrolled into
// view and selected, the list is given the keyboard, and the answer is true.
bool FindListItem(ListView& list, const std::string& text);
