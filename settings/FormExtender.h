#pragma once

#include <optional>
#include <string>

#include "platform/Scheduler.h"
#include "platform/toolkit/Component.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Settable.h"
#include "settings/IniFile.h"

// Remembers where its form's window stands and how large it is, and puts it back there when the form opens again: a
// section of the form's name in the file, with Left, Top, Width and Height in twips, all four in one step. Also the
// form's on-top switch.
class FormExtender : public Component {
 public:
  FormExtender(Form& form, std::string name);
  ~FormExtender() override;
  void Retire() override;

  // The file. Setting it gives the window to the store: the store puts it where it was seen last, in this run or, for
  // a form that has just opened, in the file; from then on every place that the window takes is remembered.
  Settable<std::string> RecordWindowPosTo;
  // Takes the window from the store until RecordWindowPosTo is set again; no place in between is remembered.
  void Release();
  // Gives the window to the store as it stands: nothing is restored.
  void Hold();

  Settable<bool>& OnTop;

 private:
  struct Place {
    Twips left, top, width, height;
    bool operator==(const Place&) const = default;
  };

  void Restore();
  std::optional<Place> Stored();
  void Note();
  void Write();
  void StopWaiting();

  IniFile file_;
  bool holding_ = false;
  std::optional<Place> seen_;
  std::optional<Place> written_;
  Scheduler::Id waiting_ = 0;
};
