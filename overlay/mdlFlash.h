#pragma once

#include <string>

class FlashBox;
class Form;

// Brings the movie or picture at `path` into the form, over all of it, and makes the form see-through. A file that
// cannot be opened brings a warning before the operator, which holds nothing up, and is put all the same: the form is
// then empty, or shows on what it showed before.
void LoadFlashInto(FlashBox& flash, const std::string& path, Form& form);

// Switches a form's key colour. Switched on, it replaces the whole extended style by kLayered; switched off, by none,
// whatever else had been set in it, and the form is opaque and grey.
void SetFormTransparent(Form& form, bool enabled);
