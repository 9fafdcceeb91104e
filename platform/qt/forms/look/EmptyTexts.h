#pragma once

#include <QAbstractItemView>
#include <QString>
#include <span>

// What a list says while it is empty: in one line, what to do.
struct EmptyTextRow {
  const char* form;
  const char* list;
  const char* text;
};
std::span<const EmptyTextRow> EmptyTexts();

// Empty for a list without a row.
QString EmptyText(const QString& form, const QString& list);

// Gives the list its text; DrawEmptyText, called at the end of the list's own painting, shows it while it has no rows.
void SetEmptyText(QAbstractItemView& list, const QString& text);
void DrawEmptyText(const QAbstractItemView& list);
