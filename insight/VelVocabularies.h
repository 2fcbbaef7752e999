#ifndef VELVOCABULARIES_H
#define VELVOCABULARIES_H

#include "insight/VelVocabulary.h"

/// The vocabularies of the documents, made out of the library's tables: here stands only which values make sense where.
namespace VelVocabularies {

VelVocabulary inputSources();
VelVocabulary deliveryTypes();
VelVocabulary expressTypes();
VelVocabulary arrangements();
VelVocabulary lettersOfArticles();
VelVocabulary lettersOfAddOns();
VelVocabulary lettersOfTransfers();
VelVocabulary lettersOfExpressFees();
VelVocabulary lettersOfPaymentFees();
VelVocabulary transferModels();
VelVocabulary allLetters();
VelVocabulary payments();
VelVocabulary strategies();
VelVocabulary connectStrategies();
VelVocabulary imageExports();
VelVocabulary couponTypes();

} // namespace VelVocabularies

#endif
