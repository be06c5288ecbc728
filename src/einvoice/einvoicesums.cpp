#include "einvoicesums.h"

#include "invoiceitem.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

using Wide = __int128;

Wide magnitude(Wide value) { return value < 0 ? -value : value; }

/** Divides, half away from zero. */
Wide divide(Wide number, Wide by)
{
    if (by < 0) {
        number = -number;
        by = -by;
    }
    const Wide rounded = (2 * magnitude(number) + by) / (2 * by);
    return number < 0 ? -rounded : rounded;
}

constexpr int rateScale = 10000; // hundredths of a percent in one
constexpr int quantityScale = 10000;
constexpr int mostDecimals = 10;

long long taxOf(long long base, int rate) { return static_cast<long long>(divide(Wide(base) * rate, rateScale)); }

/** The base whose base and tax come nearest to a sum with VAT. */
long long baseOf(long long gross, int rate)
{
    const long long near = static_cast<long long>(divide(Wide(gross) * rateScale, rateScale + rate));
    long long best = near;
    for (const long long base : {near - 1, near + 1}) {
        const auto distance = [&](long long b) { return magnitude(Wide(b) + taxOf(b, rate) - gross); };
        if (distance(base) < distance(best))
            best = base;
    }
    return best;
}

/** The fewest decimals with which the price times the quantity is still the amount. */
void setPrice(EInvoice::Line &line, Wide number, Wide by)
{
    Wide power = 100;
    for (int decimals = 2; decimals <= mostDecimals; ++decimals, power *= 10) {
        const Wide price = divide(number * power, by);
        const bool isClose =
            magnitude(price * by - number * power) * magnitude(line.quantity) <= 40 * magnitude(by) * power;
        if (!isClose && decimals < mostDecimals)
            continue;
        line.price = static_cast<long long>(price);
        line.priceDecimals = decimals;
        return;
    }
}

/** The price and what was taken off or put on. */
void setPriceAndAllowance(EInvoice::Line &line, const InvoiceItem &row, int sign)
{
    line.quantity = row.quantity * sign;
    Wide number = row.amount, by = rateScale; // of a price without VAT: four decimals
    if (!row.vatExcluded && row.discount == 0 && line.quantity != 0) {
        number = Wide(line.net) * (quantityScale / 100);
        by = line.quantity;
    } else if (!row.vatExcluded) {
        by = rateScale + row.vatRate;
    }
    if ((number < 0) != (by < 0) && number != 0) { // a price is never below zero: the quantity is
        line.quantity = -line.quantity;
        number = -number;
    }
    if (by < 0) {
        number = -number;
        by = -by;
    }
    if (row.vatExcluded) {
        line.price = static_cast<long long>(number); // as it was agreed
        for (line.priceDecimals = 4; line.priceDecimals > 2 && line.price % 10 == 0; --line.priceDecimals)
            line.price /= 10;
    } else {
        setPrice(line, number, by);
    }
    if (row.discount == 0)
        return;
    Wide scale = quantityScale;
    for (int i = 2; i < line.priceDecimals; ++i)
        scale *= 10;
    const long long amount = static_cast<long long>(divide(Wide(line.quantity) * line.price, scale));
    line.allowance = amount - line.net;
    line.base = amount;
    const int percent = row.discount < 0 ? -row.discount : row.discount;
    const Wide difference = Wide(magnitude(line.allowance)) * rateScale - magnitude(Wide(amount) * percent);
    line.percent = magnitude(difference) > 2 * rateScale ? 0 : percent;
}

} // namespace

void EInvoice::addSums(Document &document, const QVector<SummedRow> &rows, int sign, long long total, long long balance)
{
    std::map<std::pair<int, QString>, QVector<SummedRow>> groups;
    long long sumOfRows = 0;
    for (const SummedRow &row : rows) {
        row.line->net = sign * row.row->totalAmountVatExcluded();
        sumOfRows += row.row->totalAmountVatIncluded();
        groups[{row.line->vatRate, row.line->category}].append(row);
    }
    document.isTotalWrong = sumOfRows != total;
    for (auto &[key, group] : groups) {
        const int rate = key.first;
        long long gross = 0, net = 0;
        for (const SummedRow &row : group) {
            gross += sign * row.row->totalAmountVatIncluded();
            net += row.line->net;
        }
        long long rest = baseOf(gross, rate) - net;
        // Only prices with VAT may give: 3 times 10.00 stays 30.00.
        QVector<SummedRow> givers;
        for (const SummedRow &row : group) {
            if (!row.row->vatExcluded && row.line->net != 0)
                givers.append(row);
        }
        std::stable_sort(givers.begin(), givers.end(), [](const SummedRow &a, const SummedRow &b) {
            return magnitude(a.line->net) > magnitude(b.line->net);
        });
        for (const SummedRow &row : qAsConst(givers)) {
            if (rest == 0)
                break;
            const int cent = rest > 0 ? 1 : -1;
            row.line->net += cent;
            rest -= cent;
        }
        Tax tax;
        tax.category = key.second;
        tax.rate = rate;
        for (const SummedRow &row : group)
            tax.base += row.line->net;
        tax.tax = taxOf(tax.base, rate);
        document.taxes.append(tax);
        document.net += tax.base;
        document.tax += tax.tax;
    }
    for (const SummedRow &row : rows)
        setPriceAndAllowance(*row.line, *row.row, sign);
    document.total = document.net + document.tax;
    document.paid = sign * (total - balance);
    document.rounding = sign * total - document.total;
    document.payable = sign * balance;
}
