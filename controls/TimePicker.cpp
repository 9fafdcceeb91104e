#include "controls/TimePicker.h"

#include <utility>

namespace {

std::string TwoFigures(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

void Fill(ComboBox& list, int last) {
  for (int number = 1; number <= last; ++number) list.AddItem(TwoFigures(number));
}

}  // namespace

TimePicker::TimePicker(Form& form, std::string name) : UserControl(form, std::move(name)) { FillLists(); }

TimePicker::TimePicker(Control& container, std::string name) : UserControl(container, std::move(name)) { FillLists(); }

void TimePicker::FillLists() {
  Label8.Caption = "Play time";
  CmbHH.Text = "12";
  CmbMM.Text = "00";
  cmbSS.Text = "00";
  cmbAMPM.Text = "AM";
  Fill(CmbHH, 12);
  Fill(CmbMM, 59);
  Fill(cmbSS, 59);
  for (const char* half : {"AM", "PM"}) cmbAMPM.AddItem(half);
}

std::string TimePicker::GetTime() const {
  return CmbHH.Text.Get() + ":" + CmbMM.Text.Get() + ":" + cmbSS.Text.Get() + " " + cmbAMPM.Text.Get();
}
