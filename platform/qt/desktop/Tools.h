#pragma once

#include <QString>
#include <QStringList>
#include <string>

// The program that stands at a path, whatever the case of its letters: exactly there, or there without the ending
// ".exe". Empty when none does that may be run.
std::string ToolAt(const std::string& path);

// Starts the program at that path in its own folder, apart from the station. Nothing happens where there is none.
void StartDetached(const std::string& path);

// Starts a program in a folder, apart from the station: it lives on when the station ends, and what it says goes
// nowhere.
void StartApart(const QString& program, const QStringList& arguments, const QString& folder);
