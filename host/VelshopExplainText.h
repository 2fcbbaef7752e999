#ifndef VELSHOPEXPLAINTEXT_H
#define VELSHOPEXPLAINTEXT_H

#include "insight/VelPriceExplanation.h"

#include <QString>
#include <QStringList>

class QTextStream;

/// Prints what is explained, and what is to be noted of it, in lines of a terminal's width.
void printHead(const QStringList& theLines, QTextStream& theOutput);

/// Prints an explanation for people: for each term a line, its reason and the places of its prices; on request every
/// candidate and every place.
void printExplanation(const VelPriceExplanation& theExplanation, bool theIsAll, QTextStream& theOutput);

/// As "2 Roll bundle M, 80 pieces".
QString termText(const VelExplainedTerm& theTerm);

/// As "Shipping group 1 Prints".
QString groupText(int theGroup);

/// Whether the term is the first one of its shipping group, behind the former one, which may be null. What is of no
/// group, as the fee of a payment, stands below no head.
bool beginsGroup(const VelExplainedTerm* theFormer, const VelExplainedTerm& theTerm);

/// As "4.62 €", "no price" where there is none.
QString amountText(bool theHasPrice, qint64 theAmount);

/// As "131 to 140: 4.62 €, 1 x 450: passed over".
QString candidateText(const VelExplainedCandidate& theCandidate);

/// As "NET, MAIL from 10 pieces".
QString needText(const VelExplainedNeed& theNeed);

/// As "shop/pricelist.xml:45:23: price="450"".
QString placeText(const VelExplainedPlace& thePlace);

#endif
