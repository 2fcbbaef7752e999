#ifndef VELCLIENTSTRATEGYEXCEPTION_H
#define VELCLIENTSTRATEGYEXCEPTION_H

#include "frame/VelEnumerations.h"
#include "frame/VelTarmExport.h"

#include <QDomElement>
#include <QString>

/// A key account's departures from the client's usual handling of logins, as an element `client_strategy_exception` of
/// the ordering details says them. A value; acting on it is the application's business.
class VELTARM_EXPORT VelClientStrategyException
{
public:
    /// As after reset().
    VelClientStrategyException();

    /// The eight values as they are given.
    VelClientStrategyException(VelForgottenPasswordStrategy theUserInsertStrategy, const QString& theUserInsertTarget,
                               VelForgottenPasswordStrategy thePasswordStrategy, const QString& thePasswordTarget,
                               VelConnectStrategy theConnectStrategy, bool theLoginDataEditingEnabled,
                               const QString& theDnsMailSuffix, bool theShowAGBCheckbox);

    /// By all eight values; a null and an empty text are equal. Meant so: not const.
    bool operator==(const VelClientStrategyException& theOther);
    bool operator!=(const VelClientStrategyException& theOther);

    /// `userinsert_strategy`: what happens when a user is to be inserted. An unknown key is the default.
    VelForgottenPasswordStrategy userInsertStrategy() const { return myUserInsertStrategy; }

    /// `userinsert_target`: the text that goes with that strategy, as it stands.
    QString userInsertTarget() const { return myUserInsertTarget; }

    /// `password_strategy`: what happens for a forgotten password. An unknown key is the default.
    VelForgottenPasswordStrategy passwordStrategy() const { return myPasswordStrategy; }

    /// `password_target`: the text that goes with that strategy, as it stands.
    QString passwordTarget() const { return myPasswordTarget; }

    /// `connect_strategy`: how the client connects. An unknown key is the default.
    VelConnectStrategy connectStrategy() const { return myConnectStrategy; }

    /// `logindata_editing`, default true.
    bool loginDataEditingEnabled() const { return myLoginDataEditingEnabled; }

    /// `dns_mail_suffix`.
    QString dnsMailSuffix() const { return myDnsMailSuffix; }

    /// `show_agb_checkbox`, default true.
    bool showAGBCheckbox() const { return myShowAGBCheckbox; }

    /// The default strategies, empty texts that are not null, and true for both flags.
    void reset();

    /// Replaces all eight values by those of the element: a missing attribute gives the default, a null text for the
    /// targets and the suffix. An element of another tag, or a null one, changes nothing.
    void setValues(const QDomElement& theElement);

private:
    VelForgottenPasswordStrategy myUserInsertStrategy;
    QString myUserInsertTarget;
    VelForgottenPasswordStrategy myPasswordStrategy;
    QString myPasswordTarget;
    VelConnectStrategy myConnectStrategy;
    bool myLoginDataEditingEnabled;
    QString myDnsMailSuffix;
    bool myShowAGBCheckbox;
};

#endif
