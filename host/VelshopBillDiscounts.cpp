#include "host/VelshopBillDiscounts.h"

#include "bill/VelTarmBillPositionAbstract.h"
#include "bill/VelTarmOrder.h"
#include "product/VelProductAbstract.h"

#include <QDomDocument>
#include <QXmlStreamWriter>

namespace {

const QString STR_DISCOUNTS = QStringLiteral("discounts");
const QString STR_GROUP = QStringLiteral("group");
const QString STR_PRODUCT = QStringLiteral("product");
const QString STR_PIECES = QStringLiteral("pieces");
const QString STR_ID = QStringLiteral("id");
const QString STR_NAME = QStringLiteral("name");
const QString STR_COUNT = QStringLiteral("count");

/// The products of the bill, the fees behind the others, each once.
QList<VelProductAbstract*> productsOf(const VelTarmBill& theBill)
{
    QList<VelProductAbstract*> products;
    for (const VelTarmBillPositionAbstract* position : theBill.orderPositions())
        if (!products.contains(position->product()))
            products.append(position->product());
    return products;
}

/// An element of the document tree keeps its attributes in the order of a hash.
void writeSorted(const QDomElement& theElement, QXmlStreamWriter& theWriter)
{
    QMap<QString, QString> sorted;
    const QDomNamedNodeMap attributes = theElement.attributes();
    for (int index = 0; index < attributes.count(); ++index)
        sorted[attributes.item(index).nodeName()] = attributes.item(index).nodeValue();
    theWriter.writeEmptyElement(theElement.tagName());
    for (auto attribute = sorted.cbegin(); attribute != sorted.cend(); ++attribute)
        theWriter.writeAttribute(attribute.key(), attribute.value());
}

void writeProduct(VelTarmBill& theBill, VelProductAbstract* theProduct, QXmlStreamWriter& theWriter)
{
    theWriter.writeStartElement(STR_PRODUCT);
    theWriter.writeAttribute(STR_ID, QString::number(theProduct->articleID()));
    theWriter.writeAttribute(STR_NAME, theProduct->name());
    QDomDocument document;
    while (const int count = theBill.itemsAvailableInCurrentDiscountLevel(theProduct)) {
        QDomElement pieces = document.createElement(STR_PIECES);
        pieces.setAttribute(STR_COUNT, count);
        theBill.describeDiscount(pieces, theProduct, count, true);
        writeSorted(pieces, theWriter);
    }
    theWriter.writeEndElement();
}

/// The description changes the bill, so it works on a copy.
void writeGroup(const VelTarmOrderBill& theBill, QXmlStreamWriter& theWriter)
{
    VelTarmBill bill(theBill.bill());
    bill.initDiscountInfoForXTCI();
    theWriter.writeStartElement(STR_GROUP);
    theWriter.writeAttribute(STR_ID, QString::number(theBill.group()));
    for (VelProductAbstract* product : productsOf(bill))
        writeProduct(bill, product, theWriter);
    theWriter.writeEndElement();
}

} // namespace

QByteArray discountDescription(const VelTarmOrder& theOrder)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(STR_DISCOUNTS);
    for (const VelTarmOrderBill& bill : theOrder.bills())
        writeGroup(bill, writer);
    writer.writeEndDocument();
    return bytes;
}
