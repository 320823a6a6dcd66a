#include "painting/QtText.h"

#include "lib/text/CodePage.h"

#include <QTextDocument>

QString ToQString(std::string_view cp1252)
{
    const std::string utf8 = Utf8FromCp1252(cp1252);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQString(const QString& text) { return Cp1252FromUtf8(text.toStdString()); }

std::string FromTextDocument(const QTextDocument& document)
{
    // The plain text would make blanks of the fixed blanks.
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return FromQString(text);
}
