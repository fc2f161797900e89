#include "costing/mdGetFASTotals.h"

#include "costing/mdFigureFaults.h"
#include "formdata/clsZR3Form.h"

Money FASItemsTotal(const clsZR3Form &form)
{
    Money total;
    for (const auto &item : form.FASItemsCollection())
        total = total + mdExplained(form, *item, [&] { return item->Total(); });
    return total;
}

Money FASVATTotal(const clsZR3Form &form)
{
    Money total;
    for (const auto &item : form.FASItemsCollection()) {
        if (item->VATForFAS().isEmpty())
            item->VATForFAS = QStringLiteral("0");
        total = total + mdExplained(form, *item, [&] { return MoneyFromText(item->VATForFAS()); });
    }
    return total;
}
