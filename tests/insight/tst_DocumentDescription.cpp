#include "VelRecordingParser.h"

#include "bill/VelCoupon.h"
#include "frame/VelTarmConfig.h"
#include "insight/VelDocumentDescription.h"
#include "ordering/VelCurrencyConfig.h"
#include "ordering/VelOrderingDetails.h"
#include "product/VelProductAbstract.h"
#include "product/VelProductRegistry.h"
#include "sibling/VelDirectoryConfig.h"
#include "support/VelTestAccount.h"
#include "support/VelTestDocuments.h"

namespace {

using Document = VelDocumentDescription;

/// The document by its root, of which each kind has a tag of its own but the currencies, which have no sections.
const Document& documentOf(const QDomElement& theElement)
{
    const QDomElement parent = theElement.parentNode().toElement();
    if (!parent.isNull())
        return documentOf(parent);
    for (const Document* document : Document::all())
        if (document->root().tag() == theElement.tagName())
            return *document;
    qFatal("What is read has no description: %s", qPrintable(theElement.tagName()));
}

/// Path and name; a question mark for what is not described.
QString nameOf(const QDomElement& theElement, const QString& theAttribute)
{
    const VelElementDescription* element = documentOf(theElement).element(theElement);
    return (element ? element->path() : '?' + theElement.tagName()) + '@' + theAttribute;
}

/// All attributes and texts that are described, but the lines of the order text, which are read as they come.
void collect(const VelElementDescription& theElement, QSet<QString>& theNames)
{
    for (const VelValueDescription& attribute : theElement.attributes())
        theNames.insert(theElement.path() + '@' + attribute.myName);
    if (theElement.text() && theElement.text()->myType != VelValueDescription::TYPE_LINE)
        theNames.insert(theElement.path() + '@');
    for (const VelElementDescription& child : theElement.children())
        collect(child, theNames);
}

QString difference(const QSet<QString>& theAll, const QSet<QString>& theOthers)
{
    QStringList names = (QSet<QString>(theAll) - theOthers).values();
    names.sort();
    return names.join(' ');
}

} // namespace

class DocumentDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    /// What is read is described, and what is described is read: on documents in which everything occurs.
    void describedIsRead()
    {
        QSet<QString> described;
        for (const Document* document : Document::all())
            collect(document->root(), described);
        QSet<QString> read;
        Recording::reader = [&read](const QDomElement& theElement, const QString& theName) {
            read.insert(nameOf(theElement, theName));
        };
        readAllDocuments();
        Recording::reader = nullptr;
        QCOMPARE(difference(read, described), QString());
        QCOMPARE(difference(described, read), QString());
        const VelProductAbstract* product = VelProductRegistry::instance()->productWithArticleID(1);
        QVERIFY(product && product->toOrderTxt().contains("TYPE=PSC101"));
    }

    /// Defaults and sensible values are of the kind that is told, and words are what the library takes for them.
    void valuesAreOfTheirTypes()
    {
        for (const Document* document : Document::all())
            verifyValues(document->root());
    }

    void freeTags()
    {
        const VelElementDescription& root = Document::of(Document::ORDERING_DETAILS).root();
        QCOMPARE(root.child("pay_methods")->child("cash")->tag(), QString("pay_method"));
        QVERIFY(!root.child("groups")->child("gruppe") && !root.child("paymethods"));
        const QDomElement shop = parsedElement("<shop><transfers><transfer/></transfers></shop>");
        const VelElementDescription* transfer =
            Document::of(Document::PRICE_LIST).element(shop.firstChildElement().firstChildElement());
        QCOMPARE(transfer->path(), QString("pricelist/transfers/transfer"));
        QVERIFY(!transfer->child("base_prices")->child("price")->attribute("type")->myVocabulary.word("B"));
    }

private:
    void readAllDocuments()
    {
        QVERIFY(QDir().mkpath(myFolder.path("icons/payment")));
        for (const Document* document : Document::all())
            if (document->kind() != Document::COUPON)
                myFolder.write(document->file(), FullDocument(*document, true).bytes());
        VelDirectoryConfig::instance()->setConfigurationDirectory(myFolder.path());
        VelDirectoryConfig::instance()->setResourceDirectory(myFolder.path());
        const MessageCatcher messages;
        myFolder.activate();
        VelTarmConfig::instance()->defaultOrderSource();
        VelCurrencyConfig::instance();
        VelOrderingDetails::instance();
        VelProductRegistry::instance();
        const FullDocument coupon(Document::of(Document::COUPON), true);
        QVERIFY(VelCoupon("code", coupon.root()).isValid());
    }

    void verifyValues(const VelElementDescription& theElement)
    {
        for (const VelValueDescription& value : theElement.attributes())
            verifyValue(theElement.path() + '@' + value.myName, value);
        if (theElement.text())
            verifyValue(theElement.path(), *theElement.text());
        for (const VelElementDescription& child : theElement.children())
            verifyValues(child);
    }

    void verifyValue(const QString& theName, const VelValueDescription& theValue)
    {
        for (const VelVocabulary::Word& word : theValue.myVocabulary.myWords) {
            QVERIFY2(theValue.myVocabulary.isInTable(word.myText) && !word.myText.isEmpty(), qPrintable(theName));
            QCOMPARE(theValue.myVocabulary.myDecode(" " + word.myText.toUpper()), word.myValue);
        }
        bool isNumber = true;
        if (theValue.isWholeNumber() && !theValue.myDefault.isNull())
            theValue.myDefault.toInt(&isNumber);
        QVERIFY2(isNumber && theValue.myMeaning.endsWith('.'), qPrintable(theName));
    }

    TestAccount myFolder;
};

VEL_TEST_MAIN(DocumentDescriptionTest)
#include "tst_DocumentDescription.moc"
