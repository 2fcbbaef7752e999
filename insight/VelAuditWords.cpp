#include "insight/VelAuditWords.h"

#include <QVector>

#include <algorithm>

namespace {

/// Longer words aren't names that somebody misspelt.
constexpr int LONGEST_WORD = 64;
constexpr int LONGEST_QUOTE = 60;

} // namespace

int VelAuditWords::distance(const QString& theLeft, const QString& theRight, int theBound)
{
    const QString left = theLeft.toLower();
    const QString right = theRight.toLower();
    if (qAbs(left.size() - right.size()) > theBound || left.size() > LONGEST_WORD)
        return theBound + 1;
    const int width = static_cast<int>(right.size()) + 1;
    QVector<int> beforeLast(width), last(width), row(width);
    for (int column = 0; column < width; ++column)
        row[column] = column;
    for (int line = 1; line <= left.size(); ++line) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = line;
        for (int column = 1; column < width; ++column) {
            const bool isSame = left.at(line - 1) == right.at(column - 1);
            row[column] = std::min({last[column] + 1, row[column - 1] + 1, last[column - 1] + (isSame ? 0 : 1)});
            const bool isSwapped = line > 1 && column > 1 && left.at(line - 1) == right.at(column - 2) &&
                                   left.at(line - 2) == right.at(column - 1);
            if (isSwapped)
                row[column] = std::min(row[column], beforeLast[column - 2] + 1);
        }
    }
    return std::min(row[width - 1], theBound + 1);
}

QString VelAuditWords::nearest(const QString& theText, const QStringList& theWords)
{
    const QString text = theText.trimmed();
    QString found;
    int best = qMax(1, static_cast<int>(text.size()) / 3) + 1;
    for (const QString& word : theWords) {
        const int away = distance(text, word, best - 1);
        if (away < best && away < word.size()) {
            best = away;
            found = word;
        }
    }
    return found;
}

QString VelAuditWords::quoted(const QString& theText)
{
    QString text = theText;
    for (QChar& character : text)
        if (character < QLatin1Char(' ') || character == QChar(0x7f))
            character = QLatin1Char(' ');
    if (text.size() > LONGEST_QUOTE)
        text = text.left(LONGEST_QUOTE - 1) + QChar(0x2026);
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString VelAuditWords::withSuggestion(const QString& theText, const QStringList& theWords)
{
    const QString word = nearest(theText, theWords);
    return word.isNull() ? quoted(theText) : QStringLiteral("%1, did you mean \"%2\"?").arg(quoted(theText), word);
}

QString VelAuditWords::choice(const QStringList& theWords)
{
    if (theWords.size() < 2)
        return theWords.value(0);
    return QStringLiteral("%1 or %2")
        .arg(theWords.mid(0, theWords.size() - 1).join(QStringLiteral(", ")), theWords.last());
}
