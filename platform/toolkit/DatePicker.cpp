#include "platform/toolkit/DatePicker.h"

#include "platform/toolkit/Form.h"

DatePicker::DatePicker(Form& form, std::string name)
    : Control(form, std::move(name)), Value(DateTime{}, [this](const DateTime& value) {
        if (value == Value.Get()) return;
        Value.Store(value);
        Handle("Change", [this] { Change.Raise(); });
      }) {}
