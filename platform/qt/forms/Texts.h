#pragma once

#include <QString>
#include <string>

// The station's texts are UTF-8, Qt's are its own.
inline QString Shown(const std::string& text) { return QString::fromStdString(text); }
inline std::string Stored(const QString& text) { return text.toStdString(); }
