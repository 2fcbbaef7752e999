#ifndef VELSHOPWHATIF_H
#define VELSHOPWHATIF_H

#include "host/VelshopError.h"
#include "host/VelshopSourceChoice.h"

#include <QString>
#include <QStringList>

#include <optional>

class VelshopCommandLine;
struct VelshopCart;

/// What a command line changes of a cart: order source, payment, express, coupon.
class VelshopWhatIf
{
public:
    /// False, with the error, for what can't be understood.
    bool read(const VelshopCommandLine& theLine, VelshopError& theError);

    /// Whether anything is changed.
    bool isAny() const;

    /// The order source that is named; the explanation of an article has nothing else.
    const VelshopSourceChoice& source() const { return mySource; }
    /// Whether anything else is named.
    bool isMoreThanSource() const;

    /// Changes the cart. Without a payment the cart's is kept where the order way permits it, else the way's first is
    /// taken, and the notes say so. False, with the error, for what the shop doesn't offer.
    bool applyTo(VelshopCart& theCart, QStringList& theNotes, VelshopError& theError) const;

    /// The names of the options.
    static QStringList options();

private:
    bool applySource(VelshopCart& theCart, QStringList& theNotes, VelshopError& theError) const;
    bool applyPayment(VelshopCart& theCart, VelshopError& theError) const;

    VelshopSourceChoice mySource;
    std::optional<int> myPayment;
    QString myExpress; ///< null for that of the cart
    bool myIsWithoutCoupon = false;
};

#endif
