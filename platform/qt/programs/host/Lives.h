#pragma once

#include <QtGlobal>

// Whether the process is there and not on its way out. A view whose renderer is gone is blank before anybody is told.
bool Lives(qint64 process);
