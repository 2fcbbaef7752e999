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
    /// For the registry: marks the product as missing, or as found again.
    void setDeprecated(bool theIsDeprecated) { myIsDeprecated = theIsDeprecated; }

    /// Whether the product's class and the mask share a bit.
    bool isProductClass(VelProductClass theMask) const { return (myProductClass & theMask) != 0; }
    /// Whether it is a book, a calendar, a card or a gift: its class has a bit of PRODUCT_CLASS_PRINT_FUN_MASK. False
    /// for add-ons, also for those that fit such products.
    bool isPrintFunProduct() const { return isProductClass(PRODUCT_CLASS_PRINT_FUN_MASK); }
    /// Whether it is a book of any type: its class has the bit PRODUCT_CLASS_FOTO_BOOK.
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

    /// The head line of the order text with its brackets; empty for none.
    QString orderTxtHead() const;
    /// The value of a key of the order text, such as STR_TYPE; empty for none.
    QString orderTxtValue(const QString& theKey) const;
    /// The value of STR_TYPE, the order-text type; empty for none.
    QString orderTxtType() const { return orderTxtValue(STR_TYPE); }
    /// The value of STR_SCALE; empty for none.
    QString orderTxtScale() const { return orderTxtValue(STR_SCALE); }
    /// The value of STR_SALESLINE; empty for none.
    QString orderTxtSalesline() const { return orderTxtValue(STR_SALESLINE); }

    /// Whether the order-text head is STR_DESIGN, exactly and case-sensitively.
    bool isDesign() const { return orderTxtHead() == STR_DESIGN; }
    /// Whether the order-text head is STR_FRAME, exactly and case-sensitively.
    bool isFrame() const { return orderTxtHead() == STR_FRAME; }
    /// Whether the order-text head is STR_WALL_HOLDER, exactly and case-sensitively.
    bool isWallHolder() const { return orderTxtHead() == STR_WALL_HOLDER; }
    /// Whether the order-text head is STR_PAGE_PACKAGE, exactly and case-sensitively.
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

    /// Of a transfer product: shipping without a bill. Under TRANSFER_MODEL_2 it is the base charge alone.
    int transferPriceFor(const VelTarmPriceKey& theKey, int theCount, int theBillingSum,
                         const VelOrderStatistic* theStatistic) const;
    /// Of a transfer product: the charge for further items under TRANSFER_MODEL_2.
    int unitTransferPriceFor(const VelTarmPriceKey& theKey, const VelOrderStatistic* theStatistic) const;

    /// The bands that the pattern covers. A base limit stays only while it is the last limit of its model.
    QSet<VelDiscountLimit> discountLimits(const VelTarmPriceKey& theKey) const;
    /// Cents for one piece, or for one package, in the band that a limit describes; -1 when there is no such band. The
    /// limit has to come from this product's own discountLimits(): to one of another product, or of a whole shipping
    /// group, another band may answer, which shares no more than its level or its lower limit.
    int priceAtBound(const VelTarmPriceKey& theKey, const VelDiscountLimit& theLimit) const;

    /// Of a transfer product: how the shipping computes, as its entries say it; TRANSFER_MODEL_UNDEFINED for all
    /// others.
    VelTransferModel transferModel() const;
    /// Cents of `transfer_base_price` of the product's base entry, 0 without one.
    int baseTransferPrice(const VelTarmPriceKey& theKey) const;
    /// Cents of `transfer_unit_price` of the product's base entry, 0 without one.
    int unitTransferPrice(const VelTarmPriceKey& theKey) const;

    /// The old price of one piece, from the base entry, in cents; -1 for none. Whether the offer still runs isn't
    /// looked at.
    int nonOfferPrice(const VelTarmPriceKey& theKey) const;
    /// When the offer of the base entry ends; the Unix epoch without one.
    QDateTime endOfferDate(const VelTarmPriceKey& theKey) const;

    /// Whether the product has any valid shipping time.
    bool shippingTimesEnabled() const;
    /// The days of production and shipping; invalid without an entry of both types.
    VelTarmShippingTime shippingTime(VelDeliveryType theDeliveryType, VelExpressType theExpressType) const;
    /// Whether there is an entry of both types, so that the product can be had that way.
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
