#ifndef VELDOCUMENTMEMORY_H
#define VELDOCUMENTMEMORY_H

class QDomElement;
class QFileInfo;

/// The memory of documents that have been read. The tree of one takes about 25 times the size of its file.
namespace VelDocumentMemory {

/// Frees the tree of a document that was read from the file, and gives its memory back to the system where the C
/// library can. Nobody else may hold a node of it, or it stays.
void giveBack(QDomElement& theRoot, const QFileInfo& theFile);

} // namespace VelDocumentMemory

#endif
