#include "frame/VelChildElements.h"
#include "fuzz/FuzzShop.h"
#include "ordering/VelOrderCalculationResult.h"
#include "sibling/VelXMLParser.h"

namespace {

const VelExpressTypeEnum EXPRESS_TYPES[] = {ExpressableType_UNKNOWN, ExpressableType_STANDARD,
                                            ExpressableType_EXPRESS_1, ExpressableType_EXPRESS_2};

void appendText(QDomElement theParent, const QString& theTag, int theNumber)
{
    QDomDocument document = theParent.ownerDocument();
    theParent.appendChild(document.createElement(theTag))
        .appendChild(document.createTextNode(QString::number(theNumber)));
}

/// The result as a server would have written it.
QDomElement written(const VelOrderCalculationResult& theResult, QDomDocument& theDocument)
{
    QDomElement root = theDocument.createElement(QStringLiteral("result"));
    appendText(root, QStringLiteral("sales_tax"), theResult.salesTaxValue());
    appendText(root, QStringLiteral("bill_sum"), theResult.billSumValue());
    appendText(root, QStringLiteral("provincial_sales_tax"), theResult.provincialSalesTax());
    QDomNode times = root.appendChild(theDocument.createElement(QStringLiteral("shipping_times")));
    for (const VelExpressTypeEnum type : EXPRESS_TYPES) {
        const VelTarmShippingDate date = theResult.shippingDate(type);
        if (!date.isValid())
            continue;
        QDomElement time = theDocument.createElement(QStringLiteral("shipping_time"));
        time.setAttribute(QStringLiteral("express"), type - ExpressableType_STANDARD);
        time.setAttribute(QStringLiteral("min"), date.minDate().toString(Qt::ISODate) + QStringLiteral("T12:00:00"));
        time.setAttribute(QStringLiteral("max"), date.maxDate().toString(Qt::ISODate) + QStringLiteral("T12:00:00"));
        times.appendChild(time);
    }
    return root;
}

void askDeclaration(const VelOrderCalculationResult& theResult, QDomDocument& theDocument)
{
    QDomElement declaration = theDocument.createElement(QStringLiteral("order"));
    theResult.buildOrderDeclarationSalesTaxElement(declaration);
    const auto price = [&](const char* theTag) {
        return VelXMLParser::intAttribute(declaration.firstChildElement(QLatin1String(theTag)), QStringLiteral("price"),
                                          -1);
    };
    FUZZ_REQUIRE(price("sales_tax") == (theResult.salesTaxIsValid() ? theResult.salesTaxValue() : -1));
    FUZZ_REQUIRE(price("provincial_sales_tax") == theResult.provincialSalesTax());
}

void ask(VelOrderCalculationResult theResult)
{
    QDomDocument document;
    askDeclaration(theResult, document);
    FUZZ_REQUIRE(VelOrderCalculationResult(written(theResult, document)) == theResult);
    theResult.clear();
    FUZZ_REQUIRE(theResult == VelOrderCalculationResult(QDomElement()));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzShop::open();
    return 0;
}

/// A server's answer, and the shipping dates of further ones read into it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* theData, size_t theSize)
{
    const QList<QByteArray> documents = FuzzShop::documents(theData, theSize);
    VelOrderCalculationResult result(FuzzShop::load(documents.first()));
    ask(result);
    for (const QByteArray& document : documents.mid(1)) {
        result.readShippingDates(FuzzShop::load(document));
        ask(result);
    }
    return 0;
}
