#include "insight/VelVocabulary.h"

#include <algorithm>

const VelVocabulary::Word* VelVocabulary::word(const QString& theText) const
{
    const QString text = theText.trimmed();
    const auto found = std::find_if(myWords.begin(), myWords.end(), [&text](const Word& theWord) {
        return theWord.myText.compare(text, Qt::CaseInsensitive) == 0;
    });
    return found == myWords.end() ? nullptr : &*found;
}

QStringList VelVocabulary::texts() const
{
    QStringList texts;
    for (const Word& word : myWords)
        texts.append(word.myText);
    return texts;
}

bool VelVocabulary::isInTable(const QString& theText) const
{
    return myTableKeys.contains(theText.trimmed().toUpper());
}
