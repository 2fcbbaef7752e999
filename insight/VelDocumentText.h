#ifndef VELDOCUMENTTEXT_H
#define VELDOCUMENTTEXT_H

#include "insight/VelDocumentPlace.h"
#include "insight/VelInsightExport.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/**
 * The decoded text of a document, exactly as the library's own reader decodes it, with its lines. An offset is an index
 * into text(), in UTF-16 units from 0. A value, implicitly shared.
 */
class VELINSIGHT_EXPORT VelDocumentText
{
public:
    /// Decodes by the byte order mark, else as the XML declaration says, else as UTF-8.
    explicit VelDocumentText(const QByteArray& theBytes = QByteArray());

    /// The text without its byte order mark.
    const QString& text() const { return myText; }

    /// Number of lines, at least 1. LF, CR LF and a single CR end a line.
    int lineCount() const { return static_cast<int>(myLineStarts.size()); }
    /// The line of a number from 1, without its end; empty for a number out of range.
    QString line(int theNumber) const;

    /// The place of an offset. The end of the text is a place, too; there is none for an offset out of range.
    VelDocumentPlace place(int theOffset) const;

    /// The places of the bytes that are no characters of the document's encoding, in their order. The reader takes a
    /// replacement character for each, so the document can be read; a replacement character that is written out is
    /// none.
    QVector<VelDocumentPlace> badCharacters() const;

    /// The name in the XML declaration's `encoding`, null where there is none.
    const QString& encodingName() const { return myEncodingName; }
    /// The place of that name's first character.
    VelDocumentPlace encodingPlace() const { return place(myEncodingOffset); }
    /// False for a name that the reader doesn't know; it reads UTF-8 then. True where there is no name.
    bool isEncodingKnown() const { return myIsEncodingKnown; }

private:
    void findLines();
    void findBadCharacters(const QByteArray& theBytes);
    void findEncoding();

    QString myText;
    QVector<int> myLineStarts;    ///< offset of each line, ascending
    QVector<int> myLowSurrogates; ///< offsets of the second halves of code points beyond 16 bits, ascending
    QVector<int> myBadOffsets;    ///< ascending
    QString myEncodingName;
    int myEncodingOffset = -1;
    bool myIsEncodingKnown = true;
};

#endif
