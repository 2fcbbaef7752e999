#include "frame/VelChildElements.h"
#include "fuzz/FuzzShop.h"
#include "sibling/VelGuardedDocument.h"

#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t* theData, size_t theSize, size_t theMaxSize);

namespace {

const unsigned RAW_ONE_IN = 6; ///< so often the bytes are changed without regard to what they mean

using Random = std::minstd_rand;

/// The words of the dictionary behind one keyword: element, attribute or value.
QStringList readWords(const QString& theKeyword)
{
    QFile file(QStringLiteral(VELTARM_DICTIONARY));
    FUZZ_REQUIRE(file.open(QIODevice::ReadOnly));
    const QRegularExpression line(QStringLiteral("^%1=\"([^\"\\\\]*)\"$").arg(theKeyword),
                                  QRegularExpression::MultilineOption);
    QStringList words;
    for (auto found = line.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();)
        words.append(found.next().captured(1));
    FUZZ_REQUIRE(!words.isEmpty());
    return words;
}

void collect(const QDomElement& theElement, QList<QDomElement>& theElements)
{
    theElements.append(theElement);
    for (const QDomElement& child : VelChildElements(theElement))
        collect(child, theElements);
}

/// Changes a document as someone would who knows its vocabulary and not its rules.
class DocumentMutator
{
public:
    DocumentMutator(QDomDocument& theDocument, Random& theRandom) : myDocument(theDocument), myRandom(theRandom) {}

    void change()
    {
        myElements.clear();
        collect(myDocument.documentElement(), myElements);
        QDomElement element = anyOf(myElements);
        switch (below(9)) {
        case 0:
            return element.setAttribute(anyOf(attributeNames()), anyOf(values()));
        case 1:
            return copyElement(element);
        case 2:
            return removeElement(element);
        case 3:
            return element.setTagName(anyOf(elementNames()));
        case 4:
            return changeText(element);
        default:
            return changeAttribute(element);
        }
    }

    /// Takes an element of another document over.
    void graft(const QDomDocument& theOther)
    {
        collect(myDocument.documentElement(), myElements);
        QList<QDomElement> others;
        collect(theOther.documentElement(), others);
        anyOf(myElements).appendChild(myDocument.importNode(anyOf(others), true));
    }

private:
    static const QStringList& elementNames()
    {
        static const QStringList words = readWords(QStringLiteral("element"));
        return words;
    }
    static const QStringList& attributeNames()
    {
        static const QStringList words = readWords(QStringLiteral("attribute"));
        return words;
    }
    static const QStringList& values()
    {
        static const QStringList words = readWords(QStringLiteral("value"));
        return words;
    }

    int below(int theBound) { return static_cast<int>(myRandom() % static_cast<unsigned>(theBound)); }

    template <typename List>
    typename List::value_type anyOf(const List& theList)
    {
        return theList.at(below(theList.size()));
    }

    void copyElement(const QDomElement& theElement) { anyOf(myElements).appendChild(theElement.cloneNode()); }

    void removeElement(const QDomElement& theElement)
    {
        if (theElement != myDocument.documentElement())
            theElement.parentNode().removeChild(theElement);
    }

    /// The text of an element without elements.
    void changeText(QDomElement theElement)
    {
        if (!theElement.firstChildElement().isNull())
            return copyElement(theElement);
        const QString text = changed(theElement.text());
        while (theElement.hasChildNodes())
            theElement.removeChild(theElement.firstChild());
        theElement.appendChild(myDocument.createTextNode(text));
    }

    void changeAttribute(QDomElement theElement)
    {
        const QDomNamedNodeMap attributes = theElement.attributes();
        if (attributes.isEmpty())
            return;
        const QString name = attributes.item(below(attributes.size())).nodeName();
        const QDomElement other = anyOf(myElements);
        if (below(8) == 0)
            theElement.removeAttribute(name);
        else if (other.hasAttribute(name) && below(2) == 0)
            theElement.setAttribute(name, other.attribute(name)); // ids and groups have to meet
        else
            theElement.setAttribute(name, changed(theElement.attribute(name)));
    }

    QString changed(const QString& theText)
    {
        bool isNumber = false;
        const int number = theText.toInt(&isNumber);
        if (isNumber && below(3) == 0)
            return QString::number(static_cast<qint64>(number) * (below(3) - 1) + below(7) - 3);
        return below(2) == 0 ? anyOf(values()) : mutated(theText);
    }

    /// Without control characters, which no document can hold.
    QString mutated(const QString& theText)
    {
        const QByteArray bytes = theText.toUtf8().left(64);
        std::vector<uint8_t> buffer(bytes.begin(), bytes.end());
        buffer.resize(80);
        const size_t size = LLVMFuzzerMutate(buffer.data(), static_cast<size_t>(bytes.size()), buffer.size());
        QString text = QString::fromUtf8(reinterpret_cast<const char*>(buffer.data()), static_cast<int>(size));
        return text.remove(QRegularExpression(QStringLiteral("[^ -\\x{D7FF}]")));
    }

    QDomDocument& myDocument;
    Random& myRandom;
    QList<QDomElement> myElements;
};

bool parse(const QByteArray& theBytes, QDomDocument& theDocument)
{
    VelGuardedDocument::Refusal refusal;
    return VelGuardedDocument::setContent(theDocument, theBytes, refusal);
}

/// The input as a size in the buffer, 0 when it does not fit.
size_t store(const QList<QByteArray>& theDocuments, uint8_t* theTarget, size_t theMaxSize)
{
    const QByteArray bytes = theDocuments.join("\n%%\n");
    const auto size = static_cast<size_t>(bytes.size());
    if (size > theMaxSize)
        return 0;
    std::memcpy(theTarget, bytes.constData(), size);
    return size;
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* theData, size_t theSize, size_t theMaxSize, unsigned int theSeed)
{
    Random random(theSeed);
    QList<QByteArray> documents = FuzzShop::documents(theData, theSize);
    const int index = static_cast<int>(random() % static_cast<unsigned>(documents.size()));
    QDomDocument document;
    if (random() % RAW_ONE_IN == 0 || !parse(documents.at(index), document))
        return LLVMFuzzerMutate(theData, theSize, theMaxSize);
    DocumentMutator mutator(document, random);
    for (unsigned changes = 1 + random() % 3; changes > 0; --changes)
        mutator.change();
    documents[index] = document.toByteArray(-1);
    if (random() % 16 == 0)
        documents.append(documents.at(index)); // to be read again behind the others
    const size_t size = store(documents, theData, theMaxSize);
    return size > 0 ? size : LLVMFuzzerMutate(theData, theSize, theMaxSize);
}

extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t* theData, size_t theSize, const uint8_t* theOtherData,
                                            size_t theOtherSize, uint8_t* theTarget, size_t theMaxSize,
                                            unsigned int theSeed)
{
    Random random(theSeed);
    QList<QByteArray> documents = FuzzShop::documents(theData, theSize);
    const QList<QByteArray> others = FuzzShop::documents(theOtherData, theOtherSize);
    QDomDocument document;
    QDomDocument other;
    if (!parse(documents.first(), document) || !parse(others.last(), other))
        return 0;
    if (random() % 4 == 0) {
        documents.append(others.last());
    } else {
        DocumentMutator(document, random).graft(other);
        documents.first() = document.toByteArray(-1);
    }
    return store(documents, theTarget, theMaxSize);
}
