#include "product/VelProductAddOn.h"

#include "frame/VelChildElements.h"
#include "frame/VelKeptTexts.h"
#include "product/VelProductStorage.h"
#include "sibling/VelXMLParser.h"

#include <algorithm>

namespace {

const QString STR_LINKED_ARTICLES = QStringLiteral("linked_articles");
const QString STR_LINKED_ARTICLE = QStringLiteral("linked_article");
const QString STR_ID = QStringLiteral("id");
const QString STR_PRODUCT_CLASS = QStringLiteral("product_class");
const QString STR_REQUIREMENT = QStringLiteral("ANG1");

const int NO_ARTICLE = -1;

const QStringList& orderableByUser()
{
    static const QStringList words =
        QStringLiteral("GPT1 WH2 WH3 WH4 WH5 WH6 WH7 WH8 WH9 WH10 WH11 ECT1 ECT2 ANG1").split(QLatin1Char(' '));
    return words;
}

} // namespace

VelProductAddOn::VelProductAddOn(const QDomElement& theElement)
    : VelProductAbstract(theElement, PRODUCT_CLASS_ADD_ON)
    , myProductClassWord(VelKeptTexts::kept(VelXMLParser::attribute(theElement, STR_PRODUCT_CLASS, QString())))
{
    const QDomElement links = theElement.namedItem(STR_LINKED_ARTICLES).toElement();
    for (const QDomElement& link : VelChildElements(links, STR_LINKED_ARTICLE)) {
        const int articleID = VelXMLParser::intAttribute(link, STR_ID, NO_ARTICLE);
        if (articleID != NO_ARTICLE)
            myArticleIDs.append(articleID);
    }
    mySortedArticleIDs.assign(myArticleIDs.cbegin(), myArticleIDs.cend());
    std::sort(mySortedArticleIDs.begin(), mySortedArticleIDs.end());
}

void* VelProductAddOn::operator new(std::size_t theSize)
{
    return VelProductStorage::allocate(VelProductStorage::SHELF_ADD_ONS, theSize);
}

void VelProductAddOn::operator delete(void* theObject, std::size_t theSize)
{
    VelProductStorage::release(theObject, theSize);
}

bool VelProductAddOn::isCompatibleWithArticleId(int theArticleID) const
{
    return std::binary_search(mySortedArticleIDs.begin(), mySortedArticleIDs.end(), theArticleID);
}

bool VelProductAddOn::matches(int theArticleID, const QString& theProductClass) const
{
    return isCompatibleWithArticleId(theArticleID) && myProductClassWord == theProductClass;
}

bool VelProductAddOn::requirement() const
{
    return myProductClassWord == STR_REQUIREMENT;
}

bool VelProductAddOn::isOrderableByUser() const
{
    return orderableByUser().contains(myProductClassWord);
}

bool VelProductAddOn::isFreeTheme() const
{
    return myProductClassWord == QLatin1String("10") || myProductClassWord == QLatin1String("20");
}

QString VelProductAddOn::locrMapName()
{
    return QStringLiteral("MAP1");
}

QString VelProductAddOn::videoName()
{
    return QStringLiteral("VDO1");
}
