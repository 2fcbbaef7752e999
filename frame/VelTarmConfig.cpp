#include "frame/VelTarmConfig.h"

#include "frame/EnumHelper.h"

namespace {

const QString STR_FILE_NAME = QStringLiteral("appearance.xml");
const QString STR_DEFAULT_ORDER_SOURCE = QStringLiteral("defaultOrderSource");
const QString STR_INPUT_SOURCE = QStringLiteral("inputSource");
const QString STR_DELIVERY_TYPE = QStringLiteral("deliveryType");

} // namespace

VelTarmConfig::VelTarmConfig() : VelXMLConfig(STR_FILE_NAME) {}

VelTarmConfig* VelTarmConfig::instance()
{
    static VelTarmConfig* config = nullptr;
    if (!config)
        config = new VelTarmConfig;
    return config;
}

VelOrderSource VelTarmConfig::defaultOrderSource() const
{
    const int inputSource = getIntAttributeOfNode(STR_DEFAULT_ORDER_SOURCE, STR_INPUT_SOURCE, INPUT_SOURCE_ANY);
    const int deliveryType = getIntAttributeOfNode(STR_DEFAULT_ORDER_SOURCE, STR_DELIVERY_TYPE, DELIVERY_TYPE_ANY);
    return VelOrderSource(static_cast<VelInputSource>(inputSource), static_cast<VelDeliveryType>(deliveryType));
}

QList<QString> VelTarmConfig::supportedDiscountTypes() const
{
    QMap<QString, bool> types; // sorted, each once
    for (const QString& key : EnumHelper::globalMapDiscountModelString.keys())
        types.insert(key.toUpper(), true);
    return types.keys();
}
