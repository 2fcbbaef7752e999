#ifndef VELKEPTTEXTS_H
#define VELKEPTTEXTS_H

#include <QString>

/**
 * Own copies of texts that outlive the document they were read from. A text as the tree gives it shares the tree's
 * memory: a few of them on each page would keep the whole of a freed tree in the process.
 */
class VelKeptTexts
{
    Q_DISABLE_COPY(VelKeptTexts)

public:
    /// From here on equal texts become one, to the end of the outermost of these objects.
    VelKeptTexts();
    ~VelKeptTexts();

    /// A text of its own. Null stays null, and empty stays empty.
    static QString kept(const QString& theText);
};

#endif
