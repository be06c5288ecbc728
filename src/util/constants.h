#ifndef CONSTANTS_H
#define CONSTANTS_H

/**
 * The scales of the fixed-point numbers. Money, quantities and percentages are scaled integers, never floating point:
 * unit prices carry four decimals, every sum of money two (cents), quantities four, percentages two (24 % is 2400).
 */
namespace Constants {

/** Unit prices. */
constexpr int amountScale = 10000;
constexpr int amountFractionDigits = 4;
constexpr int amountMinFractionDigits = 2;
/** Sums of money. */
constexpr int totalAmountScale = 100;
constexpr int totalAmountFractionDigits = 2;
constexpr int totalAmountMinFractionDigits = 2;
/** Quantities of rows. */
constexpr int quantityScale = 10000;
constexpr int quantityFractionDigits = 4;
constexpr int quantityMinFractionDigits = 0;
/** VAT rates, discounts and interest. */
constexpr int percentageScale = 100;
constexpr int percentageFractionDigits = 2;
constexpr int percentageMinFractionDigits = 0;
constexpr long long maxTotalAmount = 9999999999LL; ///< cents: 99 999 999.99

} // namespace Constants

#endif
