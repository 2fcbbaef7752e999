#ifndef VELPRODUCTABSTRACT_H
#define VELPRODUCTABSTRACT_H

#include "frame/VelEnumerations.h"
#include "frame/VelExpressType.h"
#include "frame/VelTarmExport.h"
#include "ordering/VelTarmShippingTime.h"
#include "price/VelDiscountLimit.h"
#include "price/VelTarmPriceKey.h"
#include "sibling/VelProductGroup.h"

#include <QDateTime>
#include <QDebug>
#include <QDomElement>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

#include <cstddef>

class VelOrderStatistic;
class VelTarmArticle;
class VelTarmBill;

/**
 * The base of everything that can stand on a bill. It holds what an element of the price list says about the product
 * beyond the article, and owns the article, to which it passes all price questions. Fee products are direct instances.
 *
 * A product is known by its article ID. The registry owns the products of the price list and never deletes one at a
 * reload: a product that left the price list is deprecated. Amounts are whole cents; -1 means that there is no price.
 */
class VELTARM_EXPORT VelProductAbstract
{
    Q_DISABLE_COPY(VelProductAbstract)

public:
    static const QString STR_TYPE;         ///< "TYPE=", key of the order-text type
    static const QString STR_SCALE;        ///< "SCALE=", key of the variant within a type
    static const QString STR_SALESLINE;    ///< "SALESLINE=", key of the sales line
    static const QString STR_DESIGN;       ///< "[DESIGN]", order-text head of a design add-on
    static const QString STR_FRAME;        ///< "[FRAME]", of a frame add-on
    static const QString STR_WALL_HOLDER;  ///< "[WALL_HOLDER]", of a wall holder
    static const QString STR_PAGE_PACKAGE; ///< "[PAGES]", of a page package

    /// Reads an element of the price list; the class stays for the object's life.
    VelProductAbstract(const QDomElement& theElement, VelProductClass theProductClass);

    virtual ~VelProductAbstract();

    /// Products have addresses in a fixed order, see VelProductStorage.
    static void* operator new(std::size_t theSize);
    static void operator delete(void* theObject, std::size_t theSize);

    /// True, always; the null product is no exception.
    virtual bool isValid() const { return true; }

    /// The price of one piece under the global status.
    virtual int price() const;

    /// What so many pieces cost under the key. The billing sum, in cents, counts for shipping by bill sum alone.
    virtual int price(const VelTarmPriceKey& theKey, int theCount, int theBillingSum) const;

    /// The lowest of minPriceFor over the four standard ways of ordering; 2147483647 when no price was found.
    virtual int minPrice(bool theAllLimits) const;

    /// The lowest price at the bounds of discountLimits, 2147483647 for none. Without theAllLimits the first limit of
    /// the set alone decides, deliberately: whether it has a price or not.
    virtual int minPriceFor(const VelTarmPriceKey& theKey, bool theAllLimits) const;

    /// The highest price of one piece over the four standard ways of ordering; a way without a price counts -1.
    virtual int priceFirstFit() const;

    /// Attribute `id`, 0 when missing.
    virtual int articleID() const;

    /// The name; a plain product adds its shipping group.
    virtual QString fullQualifiedName() const { return name(); }

    /// The lines of the order text: head (also an empty one), values, description with the name.
    virtual QStringList toOrderTxt() const;

    /// The print size at printDPI().
    virtual QSize printPixelSize() const;

    /// A photo product turned to the orientation of the reference; all others keep theirs. A square is not landscape.
    virtual QSize printPixelSize(const QSize& theReference) const;

    /// The print size in millimetres, (0, 0) when the document says none.
    virtual QSize printSizeInMM() const;

    /// Pixels per inch, 300 when the document says nothing.
    virtual int printDPI() const;

    /// What a reload runs on an existing product. Not virtual, deliberately: what the constructors of subclasses read
    /// keeps its first value. A real element revives the product, a null one leaves it deprecated.
    void update(const QDomElement& theElement);

    /// Attribute `group`, -1 when missing.
    int shippingGroupId() const { return myShippingGroupId; }

    /// Derived from arrangement, shipping group and sales line.
    VelProductGroup productGroup() const { return myProductGroup; }

    /// Attribute `arrangement`, its words combined by OR.
    VelProductArrangement arrangement() const { return myArrangement; }

    /// Whether the element last read was an `add_on`.
    bool isAddOn() const { return myIsAddOn; }

    /// Whether the product is missing from the price list last read.
    bool isDeprecated() const { return myIsDeprecated; }
    void setDeprecated(bool theIsDeprecated) { myIsDeprecated = theIsDeprecated; }

    /// Whether the product's class and the mask share a bit; and the same for two masks.
    bool isProductClass(VelProductClass theMask) const { return (myProductClass & theMask) != 0; }
    bool isPrintFunProduct() const { return isProductClass(PRODUCT_CLASS_PRINT_FUN_MASK); }
    bool isKindOfBook() const { return isProductClass(PRODUCT_CLASS_FOTO_BOOK); }

    /// Whether the group is one of the photo and poster groups.
    bool isFotoProduct() const;

    /// Whether the group, or mask, matches the product's one.
    bool isProductGroup(const VelProductGroup& theGroup) const { return theGroup.matches(myProductGroup); }

    /// The article's name, with a translated suffix on a deprecated product.
    QString name() const;

    /// Attribute `editor_name`: the name shown in the editor and on bills.
    QString editorName() const;

    /// The order-text head without its brackets, or the order-text type when that is empty.
    QString isoFileNameSuggestion() const;

    /// Whether the product is current and the key account sells its shipping group.
    bool isOrderable() const;

    /// The order text: its head line with the brackets, and the value of a key such as STR_TYPE; empty for none.
    QString orderTxtHead() const;
    QString orderTxtValue(const QString& theKey) const;
    QString orderTxtType() const { return orderTxtValue(STR_TYPE); }
    QString orderTxtScale() const { return orderTxtValue(STR_SCALE); }
    QString orderTxtSalesline() const { return orderTxtValue(STR_SALESLINE); }

    /// By the order-text head, exactly and case-sensitively.
    bool isDesign() const { return orderTxtHead() == STR_DESIGN; }
    bool isFrame() const { return orderTxtHead() == STR_FRAME; }
    bool isWallHolder() const { return orderTxtHead() == STR_WALL_HOLDER; }
    bool isPagePackage() const { return orderTxtHead() == STR_PAGE_PACKAGE; }

    /// Whether the order-text value "BORDER" is "1".
    bool canHaveBorderColor() const;

    /// Width times height of the print size in pixels; wraps around.
    int countPrintPixels() const;

    /// Whether there is a price at a point of sale.
    bool orderableViaPOS() const;

    /// As price(), the positions going to the bill and inherited discounts being looked up in it; without for null.
    int priceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum, VelTarmBill* theBill,
                 const VelOrderStatistic* theStatistic) const;

    /// Of a transfer product: shipping without a bill. Under TRANSFER_MODEL_2 the first is the base charge alone and
    /// the second the charge for further items.
    int transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                         const VelOrderStatistic* theStatistic) const;
    int unitTransferPriceFor(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const;

    /// The bands that the pattern covers, and the price of one band. A base limit stays only while it is the last limit
    /// of its model.
    QSet<VelDiscountLimit> discountLimits(const VelTarmPriceKey& theKey) const;
    int priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const;

    /// How the shipping computes, as its entries say it, and the charges `transfer_base_price` and
    /// `transfer_unit_price` of the product's base entry, 0 without one.
    VelTransferModel transferModel() const;
    int baseTransferPrice(const VelTarmPriceKey& theKey) const;
    int unitTransferPrice(const VelTarmPriceKey& theKey) const;

    /// Of the base entry: the old price of one piece, -1 for none, and when its offer ends. Whether the offer still
    /// runs isn't looked at.
    int nonOfferPrice(const VelTarmPriceKey& theKey) const;
    QDateTime endOfferDate(const VelTarmPriceKey& theKey) const;

    /// The days of production and shipping; without an entry of both types the time is invalid and the type can't be
    /// had.
    bool shippingTimesEnabled() const;
    VelTarmShippingTime shippingTime(VelDeliveryType theDeliveryType, VelExpressType theExpressType) const;
    bool isExpressable(VelDeliveryType theDeliveryType, VelExpressType theExpressType) const;

    /// Rates an image of so many pixels per millimetre: -1 not rated (0 or below), 0 red, 1 yellow, 2 green.
    int qualityOnScaleForPPMM(double thePPMM) const;

    /// The one product that stands for none: deprecated, without a class. Built on first use without a lock, never
    /// freed.
    static VelProductAbstract* nullProduct();

    /// The product's own article, never null. Open to the library, and to its static form within the source tree: a
    /// host doesn't have the article's header.
#ifndef VELTARM_INTERNALS
private:
#endif
    VelTarmArticle* tarmArticle() const
    {
        return myArticle;
    }

private:
    void updateOwnInformation(const QDomElement& theElement);

    VelTarmArticle* myArticle = nullptr;
    int myShippingGroupId = -1;
    VelProductGroup myProductGroup = VelProductGroup(PRODUCT_GROUP_UNKNOWN);
    bool myIsAddOn = false;
    bool myIsDeprecated = true;
    VelProductArrangement myArrangement = PRODUCT_ARRANGEMENT_UNKNOWN;
    VelProductClass myProductClass;
};

VELTARM_EXPORT QDebug operator<<(QDebug theDebug, const VelProductAbstract& theProduct);

#endif
