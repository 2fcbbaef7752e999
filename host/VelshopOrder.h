#ifndef VELSHOPORDER_H
#define VELSHOPORDER_H

#include "bill/VelTarmOrder.h"
#include "host/VelshopError.h"

#include <optional>

struct VelshopCart;

/// The order that the cart asks for. None, with the error in one line, when the coupon can't be read or an amount is
/// too large; an order that can't be placed is one all the same.
std::optional<VelTarmOrder> makeOrder(const VelshopCart& theCart, VelshopError& theError);

#endif
