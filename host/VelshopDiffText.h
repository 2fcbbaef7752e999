#ifndef VELSHOPDIFFTEXT_H
#define VELSHOPDIFFTEXT_H

class QTextStream;
class VelShopDifference;
class VelshopDiffWords;

/// Prints the difference of two shops for people: in one line how much, then each of it.
void printDifference(const VelShopDifference& theDifference, const VelshopDiffWords& theWords, QTextStream& theOutput);

#endif
