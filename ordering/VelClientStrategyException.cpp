#include "ordering/VelClientStrategyException.h"

#include "frame/EnumHelper.h"
#include "sibling/VelXMLParser.h"

namespace {

const QString STR_CLIENT_STRATEGY_EXCEPTION = QStringLiteral("client_strategy_exception");
const QString STR_USERINSERT_STRATEGY = QStringLiteral("userinsert_strategy");
const QString STR_USERINSERT_TARGET = QStringLiteral("userinsert_target");
const QString STR_PASSWORD_STRATEGY = QStringLiteral("password_strategy");
const QString STR_PASSWORD_TARGET = QStringLiteral("password_target");
const QString STR_CONNECT_STRATEGY = QStringLiteral("connect_strategy");
const QString STR_LOGINDATA_EDITING = QStringLiteral("logindata_editing");
const QString STR_DNS_MAIL_SUFFIX = QStringLiteral("dns_mail_suffix");
const QString STR_SHOW_AGB_CHECKBOX = QStringLiteral("show_agb_checkbox");
const QString STR_DEFAULT = QStringLiteral("default"); // a key of both kinds of strategy
const QString STR_EMPTY = QStringLiteral("");          // empty and not null

} // namespace

VelClientStrategyException::VelClientStrategyException()
    : VelClientStrategyException(FORGOTTEN_PASSWORD_DEFAULT, STR_EMPTY, FORGOTTEN_PASSWORD_DEFAULT, STR_EMPTY,
                                 CONNECT_STRATEGY_DEFAULT, true, STR_EMPTY, true)
{
}

VelClientStrategyException::VelClientStrategyException(VelForgottenPasswordStrategy theUserInsertStrategy,
                                                       const QString& theUserInsertTarget,
                                                       VelForgottenPasswordStrategy thePasswordStrategy,
                                                       const QString& thePasswordTarget,
                                                       VelConnectStrategy theConnectStrategy,
                                                       bool theLoginDataEditingEnabled, const QString& theDnsMailSuffix,
                                                       bool theShowAGBCheckbox)
    : myUserInsertStrategy(theUserInsertStrategy)
    , myUserInsertTarget(theUserInsertTarget)
    , myPasswordStrategy(thePasswordStrategy)
    , myPasswordTarget(thePasswordTarget)
    , myConnectStrategy(theConnectStrategy)
    , myLoginDataEditingEnabled(theLoginDataEditingEnabled)
    , myDnsMailSuffix(theDnsMailSuffix)
    , myShowAGBCheckbox(theShowAGBCheckbox)
{
}

bool VelClientStrategyException::operator==(const VelClientStrategyException& theOther)
{
    return myUserInsertStrategy == theOther.myUserInsertStrategy && myUserInsertTarget == theOther.myUserInsertTarget &&
           myPasswordStrategy == theOther.myPasswordStrategy && myPasswordTarget == theOther.myPasswordTarget &&
           myConnectStrategy == theOther.myConnectStrategy &&
           myLoginDataEditingEnabled == theOther.myLoginDataEditingEnabled &&
           myDnsMailSuffix == theOther.myDnsMailSuffix && myShowAGBCheckbox == theOther.myShowAGBCheckbox;
}

bool VelClientStrategyException::operator!=(const VelClientStrategyException& theOther)
{
    return !(*this == theOther);
}

void VelClientStrategyException::reset()
{
    *this = VelClientStrategyException();
}

void VelClientStrategyException::setValues(const QDomElement& theElement)
{
    if (theElement.tagName() != STR_CLIENT_STRATEGY_EXCEPTION)
        return;
    const auto text = [&theElement](const QString& theName, const QString& theDefault) {
        return VelXMLParser::attribute(theElement, theName, theDefault);
    };
    myUserInsertStrategy = EnumHelper::decodeForgottenPasswordStrategy(text(STR_USERINSERT_STRATEGY, STR_DEFAULT));
    myUserInsertTarget = text(STR_USERINSERT_TARGET, QString());
    myPasswordStrategy = EnumHelper::decodeForgottenPasswordStrategy(text(STR_PASSWORD_STRATEGY, STR_DEFAULT));
    myPasswordTarget = text(STR_PASSWORD_TARGET, QString());
    myConnectStrategy = EnumHelper::decodeConnectStrategy(text(STR_CONNECT_STRATEGY, STR_DEFAULT));
    myLoginDataEditingEnabled = VelXMLParser::boolAttribute(theElement, STR_LOGINDATA_EDITING, true);
    myDnsMailSuffix = text(STR_DNS_MAIL_SUFFIX, QString());
    myShowAGBCheckbox = VelXMLParser::boolAttribute(theElement, STR_SHOW_AGB_CHECKBOX, true);
}
