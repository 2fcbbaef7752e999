#ifndef VELDOCUMENTPLACE_H
#define VELDOCUMENTPLACE_H

/**
 * A place in a document, as editors count: lines and columns begin with 1, a column is a Unicode code point, a tab is
 * one, a byte order mark is none, and CR LF is one line end.
 */
struct VelDocumentPlace
{
    int myLine = 0;   ///< 0 where there is no place
    int myColumn = 0; ///< 0 where there is no place

    /// Whether it is a place at all.
    bool isValid() const { return myLine > 0; }
};

/// By line, then by column; no place comes first.
inline bool operator<(const VelDocumentPlace& theLeft, const VelDocumentPlace& theRight)
{
    return theLeft.myLine != theRight.myLine ? theLeft.myLine < theRight.myLine : theLeft.myColumn < theRight.myColumn;
}
inline bool operator==(const VelDocumentPlace& theLeft, const VelDocumentPlace& theRight)
{
    return theLeft.myLine == theRight.myLine && theLeft.myColumn == theRight.myColumn;
}
inline bool operator!=(const VelDocumentPlace& theLeft, const VelDocumentPlace& theRight)
{
    return !(theLeft == theRight);
}

#endif
