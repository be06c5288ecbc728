#ifndef VAT_H
#define VAT_H

#include <QList>
#include <QMap>

/**
 * VAT arithmetic, and the accumulator of an invoice's or a list's totals per VAT rate. Integers only, rounded half away
 * from zero. Products of amounts are formed in 128 bits: no row that fits the result overflows on the way.
 */
class Vat {
public:
    /** VAT computed once per rate from the rate's sum, or row by row and then summed. */
    enum RoundingMode { roundPerRate = 1, roundPerRow = 2 };

    /**
     * Divides by 10^digits, half away from zero. Below 1 digit it divides by ten all the same: prices with four
     * significant decimals depend on it.
     */
    static long long round(long long value, int digits);
    static long long round(__int128 value, int digits);

    /** @return the amount with VAT added, in the same scale; vatRate in hundredths of a percent */
    static long long addVat(long long amount, int vatRate);

    /**
     * Takes the VAT out of an amount, through a factor of nine decimals rather than a division: other programs that
     * share the database compute it so, to the last unit.
     */
    static long long substractVat(long long amount, int vatRate);

    /**
     * Rounds a converted price (four decimals) so that it shows no more decimals than the typed one. A reference with
     * four significant decimals, or 0, sends the value through round(value, 0), that is divides it by ten.
     */
    static long long roundWithSamePrecision(long long value, long long reference);

    /** A unit price as typed (four decimals, with or without VAT) told without and with VAT. */
    static long long priceVatExcluded(long long price, int vatRate, bool vatExcluded);
    static long long priceVatIncluded(long long price, int vatRate, bool vatExcluded);

    /** A RoundingMode; to be set before the first add(). */
    void setRoundingMode(int mode) { m_roundingMode = mode; }
    int roundingMode() const { return m_roundingMode; }

    /** @param amount  a row's total with VAT, cents */
    void add(long long amount, int vatRate);
    /** Forgets the sums; the rounding mode stays. */
    void clear();

    int size() const { return m_amounts.size(); }            ///< number of rates
    QList<int> vatRates() const { return m_amounts.keys(); } ///< ascending

    // Cents, in total or of one rate (0 for a rate never added).
    long long totalAmount() const { return m_totalAmount; }
    long long totalAmount(int vatRate) const { return m_amounts.value(vatRate); }
    long long totalAmountVatExcluded() const;
    long long totalAmountVatExcluded(int vatRate) const;
    long long totalVatAmount() const;
    long long totalVatAmount(int vatRate) const;

private:
    QMap<int, long long> m_amounts;            ///< 64 bits: a list's sums go beyond those of an invoice
    QMap<int, long long> m_amountsVatExcluded; ///< roundPerRow only
    long long m_totalAmount = 0;               ///< cents, VAT included
    long long m_totalAmountVatExcluded = 0;    ///< roundPerRow only
    int m_roundingMode = roundPerRate;         ///< a RoundingMode
};

#endif
