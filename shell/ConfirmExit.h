#pragma once

class Form;

// The only way out of the program: asks, and on Yes brings the taskbar back and ends the process at once. No form is
// unloaded and nothing is saved: every setting was written when it changed.
void ConfirmExit(Form& asking);
