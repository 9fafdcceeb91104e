#pragma once

#include <QString>
#include <QStringView>

// The letter that HTML has a name for, such as "uuml"; empty for a name that is not known here. Known are those of the
// Latin letters and of the signs that newspapers use.
QString NamedLetter(QStringView name);

// What a reader sees of a piece of HTML: no tags, no scripts, and the letters in the place of their names. A text that
// is no HTML stays as it is.
QString TextOfHtml(const QString& html);
