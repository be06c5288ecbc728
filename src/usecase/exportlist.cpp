#include "exportlist.h"

#include "documentmaker.h"
#include "usecasecontext.h"

QStringList ExportList::columns(Kind kind)
{
    // In the order of Kind.
    static const char *const names[] = {
        "number,date,dueDate,deliveryDate,customerNumber,customerName,totalAmountVatExcluded,totalVatAmount,"
        "totalAmountVatIncluded,balance",
        "number,name,streetName,postCode,townName,country,contact",
        "number,name,unitCode,amount,category",
        "number,date,dueDate,deliveryDate,customerNumber,customerName,totalAmountVatIncluded,paymentAmount,paymentDate,"
        "bankAccount",
    };
    return QString::fromLatin1(names[kind]).split(QLatin1Char(','));
}

bool ExportList::run(UseCaseContext &context, Kind kind, const Request &request, QString &fileName)
{
    DocumentMaker *maker = DocumentMaker::get(context.listener, true);
    return maker && maker->exportList(context, kind, request, fileName);
}
