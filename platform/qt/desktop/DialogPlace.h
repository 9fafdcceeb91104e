#pragma once

class QDialog;

// Puts a dialog that is about to open where the operator works and the viewers do not look.
void PlaceBeforeOperator(QDialog& dialog);
