#ifndef VELDOCUMENTSCAN_H
#define VELDOCUMENTSCAN_H

#include "insight/VelDocumentPositions.h"

#include <QByteArray>
#include <QVector>

#include <expat.h>

/**
 * Fills positions from their text. Expat tells where elements, texts and comments begin; within a start tag the
 * attributes are found by a look at the text.
 *
 * Expat gets a copy of one byte for each UTF-16 unit, so that its byte offsets are offsets of the text. The copy has a
 * letter wherever the library's reader takes what expat refuses, or what is longer than a byte: references, control
 * characters, all that isn't ASCII. So whatever the reader takes, this takes too, in every encoding.
 */
class VelDocumentScan
{
public:
    explicit VelDocumentScan(VelDocumentPositions& thePositions);

    /// Scans until the end or the first error.
    void run();

private:
    bool parsed();
    void clear();
    bool mend(int theOffset, XML_Error theError);
    void fail(int theOffset, XML_Error theError);
    void tellError(int theOffset, const QString& theReason);
    QString mismatch(int theOffset) const;
    QString innermost() const;

    void listen();
    int here() const;
    void begin();
    void end();
    void addText(const char* theText, int theLength);
    void endText() { myTextStart = -1; }
    void addComment();

    void scanAttributes(int theOffset);
    int skipBlanks(int theOffset) const;
    int endOfName(int theOffset) const;
    int endOfAttribute(int theName, int& theValue) const;
    QChar at(int theOffset) const { return theOffset < myText.size() ? myText.at(theOffset) : QChar(); }

    VelDocumentPositions& myPositions;
    const QString myText;
    QByteArray myCopy;
    XML_Parser myParser = nullptr; ///< while it parses
    QVector<int> myOpen;           ///< numbers of the elements that are open, the innermost last
    QVector<int> myWaiting;        ///< indices of comments that wait for an element behind them
    int myTextStart = -1;          ///< of the text that goes on, -1 for none
};

#endif
