#ifndef VELPRICEQUESTION_H
#define VELPRICEQUESTION_H

#include "price/VelTarmPriceView.h"

/// How the price of a product is asked for. A value.
struct VelPriceQuestion
{
    VelOrderSource mySource;
    int myCount = 1;
    int myBillingSum = 0;
    int myInheritedLevel = 0;
    bool myIsExpress = false; ///< as a bill asks for the fee of an express: no other model is tried

    /// What the product answers that way.
    VelTarmPriceAnswer answer(const VelTarmPriceView& theView) const
    {
        return myIsExpress ? inModel(theView, DISCOUNT_MODEL_EXPRESS_FEE)
                           : theView.best(myCount, myBillingSum, myInheritedLevel);
    }

    /// What one model answers.
    VelTarmPriceAnswer inModel(const VelTarmPriceView& theView, VelDiscountModel theModel) const
    {
        return theView.inModel(theModel, myCount, myBillingSum, myInheritedLevel);
    }

    /// The models that are tried.
    QList<VelDiscountModel> models(const VelTarmPriceView& theView) const
    {
        return myIsExpress ? QList<VelDiscountModel>{DISCOUNT_MODEL_EXPRESS_FEE} : theView.models();
    }
};

#endif
