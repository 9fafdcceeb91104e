#pragma once

// Takes the language of the session, but for numbers: their decimal sign is a point, as libmpv insists. To be called
// once, before there is an application or any thread; nothing sets the locale after that.
void SettleLocale();
