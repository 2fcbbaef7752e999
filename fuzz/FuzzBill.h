#ifndef FUZZBILL_H
#define FUZZBILL_H

class VelTarmBill;

/// Asks a bill for everything that it can answer without being changed, and holds the answers against each other.
/// Several coupons are tried.
void askBill(const VelTarmBill& theBill);

#endif
