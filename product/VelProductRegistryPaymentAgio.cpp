#include "product/VelProductRegistryPaymentAgio.h"

#include "product/VelProductAbstract.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_ADDITIONAL_PAYMENT = QStringLiteral("paymethod_fee");
const QString STR_PAY_METHOD_ID = QStringLiteral("pay_method_id");

} // namespace

VelProductRegistryPaymentAgio::~VelProductRegistryPaymentAgio()
{
    qDeleteAll(myPaymentAgioProducts);
}

VelProductAbstract* VelProductRegistryPaymentAgio::paymentAgioProduct(VelPaymentType thePayment) const
{
    return myPaymentAgioProducts.value(thePayment, nullptr);
}

int VelProductRegistryPaymentAgio::idOfPaymentAgioProduct(VelPaymentType thePayment) const
{
    const VelProductAbstract* product = paymentAgioProduct(thePayment);
    return product ? product->articleID() : 0;
}

void VelProductRegistryPaymentAgio::readAdditionalPaymentFees(const QDomElement& theSection)
{
    myPaymentAgioProducts.clear();
    read(theSection, STR_ADDITIONAL_PAYMENT);
}

void VelProductRegistryPaymentAgio::registerProduct(const QDomElement& theElement, VelProductAbstract* theProduct)
{
    const int payment = VelXMLParser::intAttribute(theElement, STR_PAY_METHOD_ID, 0);
    myPaymentAgioProducts.insert(static_cast<VelPaymentType>(payment), theProduct);
}
