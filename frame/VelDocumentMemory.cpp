#include "frame/VelDocumentMemory.h"

#include <QDomElement>
#include <QFileInfo>

#ifdef VELTARM_CAN_TRIM_HEAP
#include <malloc.h>
#endif

namespace {

/// The tree of a smaller file is of more use to the heap, for what comes next.
const qint64 SMALLEST_FILE = 64 * 1024;

#ifdef VELTARM_CAN_TRIM_HEAP

const int DEFAULT_FAST_SIZE = 64 * sizeof(void*) / 4; // as mallopt documents it; what was set can't be asked for

/// A tree consists of millions of small pieces, which the heap puts aside as they are, for the next of their size. Here
/// each is joined with its neighbours as it is freed: to join them all afterwards would take a third of the load.
class JoiningHeap
{
    Q_DISABLE_COPY(JoiningHeap)

public:
    JoiningHeap() { mallopt(M_MXFAST, 0); }
    ~JoiningHeap() { mallopt(M_MXFAST, DEFAULT_FAST_SIZE); }
};

void freeAndTrim(QDomElement& theRoot)
{
    const JoiningHeap heap;
    theRoot.clear();
    malloc_trim(0);
}

#else

void freeAndTrim(QDomElement& theRoot)
{
    theRoot.clear();
}

#endif

} // namespace

void VelDocumentMemory::giveBack(QDomElement& theRoot, const QFileInfo& theFile)
{
    if (QFileInfo(theFile.filePath()).size() < SMALLEST_FILE) // what was once asked may be old
        theRoot.clear();
    else
        freeAndTrim(theRoot);
}
