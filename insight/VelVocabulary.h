#ifndef VELVOCABULARY_H
#define VELVOCABULARY_H

#include "insight/VelInsightExport.h"

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The words that an attribute may hold. They are those of a table of the library, looked up by their values; here
 * stands only which of them make sense in a place, and what they mean. A value.
 */
struct VELINSIGHT_EXPORT VelVocabulary
{
    /// One of them.
    struct Word
    {
        QString myText;    ///< as an author writes it
        int myValue;       ///< what the library makes of it
        QString myMeaning; ///< a few words
    };

    QString myName;                            ///< of the table, such as "DiscountModel"
    QVector<Word> myWords;                     ///< those that make sense here, in the order in which to tell them
    QStringList myTableKeys;                   ///< all that the table knows, in upper case
    int (*myDecode)(const QString&) = nullptr; ///< what the library makes of a text, lists of words included

    /// The word that a text is, blanks around it and its case left aside; null for none that makes sense here.
    const Word* word(const QString& theText) const;
    /// The texts of all words.
    QStringList texts() const;
    /// Whether the table has the word at all.
    bool isInTable(const QString& theText) const;
};

#endif
