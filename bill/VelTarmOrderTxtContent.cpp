#include "bill/VelTarmOrderTxtContent.h"

#include "frame/VelChildElements.h"
#include "frame/VelKeptTexts.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_ORDER_TXT_LINES = QStringLiteral("order_txt_lines");
const QString STR_HEAD = QStringLiteral("head");

} // namespace

VelTarmOrderTxtContent::VelTarmOrderTxtContent(const QDomElement& theArticle)
{
    update(theArticle);
}

QString VelTarmOrderTxtContent::orderTxtValue(const QString& theKey) const
{
    const QString cached = myValueCache.value(theKey);
    if (!cached.isEmpty()) // a cached empty value doesn't count as found
        return cached;
    const bool isWhole = theKey.endsWith(QLatin1Char('='));
    const QString prefix = isWhole ? theKey : theKey + QLatin1Char('=');
    for (const QString& line : myLines) {
        if (!line.startsWith(prefix, Qt::CaseInsensitive))
            continue;
        const QString value = VelKeptTexts::kept(line.mid(prefix.length()));
        myValueCache.insert(theKey, value);
        return value;
    }
    return QString();
}

void VelTarmOrderTxtContent::update(const QDomElement& theArticle)
{
    const QDomElement content = theArticle.firstChildElement(STR_ORDER_TXT_LINES);
    if (content.isNull())
        return;
    myHead = VelKeptTexts::kept(VelXMLParser::attribute(content, STR_HEAD, QString()));
    myLines.clear();
    myValueCache.clear();
    for (const QDomElement& line : VelChildElements(content))
        myLines.append(VelKeptTexts::kept(line.text()));
}
