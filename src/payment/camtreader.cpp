#include "camtreader.h"

#include "paymentsink.h"
#include "paymenttext.h"
#include "xmlguard.h"

#include <algorithm>

namespace {

constexpr int maxDepth = 100;      // the schemas need about twenty
constexpr int maxTextLength = 500; // the longest text of the schemas

bool isTrue(const QString &text) { return text == QLatin1String("true") || text == QLatin1String("1"); }

} // namespace

/**
 * Reads up to the end of the current element; what no path leads to is passed over.
 * @param parent  the beginning of the paths that has been followed, with its last slash
 */
template <class Target, std::size_t size>
void CamtReader::readElement(const Path<Target> (&paths)[size], Target &target, QLatin1String parent)
{
    while (m_xml.readNextStartElement()) {
        const QStringRef name = m_xml.name();
        QLatin1String below; // no text is put together here: half of a file's elements come to nothing
        const auto found = std::find_if(std::begin(paths), std::end(paths), [&](const Path<Target> &wanted) {
            if (!wanted.path.startsWith(parent))
                return false;
            const QLatin1String rest = wanted.path.mid(parent.size());
            if (!rest.startsWith(name))
                return false;
            if (rest.size() > name.size() && rest.at(name.size()) == QLatin1Char('/'))
                below = wanted.path.left(parent.size() + name.size() + 1);
            return rest.size() == name.size();
        });
        if (found != std::end(paths))
            found->read(*this, target);
        else if (!below.isEmpty())
            readElement(paths, target, below);
        else
            skipElement();
    }
}

template <auto member, class Target> void CamtReader::readText(CamtReader &reader, Target &target)
{
    target.*member = reader.text();
}

template <auto member> void CamtReader::readHeadText(CamtReader &reader, Entry &entry)
{
    entry.head.*member = reader.text();
}

template <auto member> void CamtReader::readAmount(CamtReader &reader, CamtTransaction &transaction)
{
    transaction.*member = reader.amount();
}

void CamtReader::read(QIODevice &device)
{
    XmlGuard guard(device);
    m_xml.setDevice(&guard);
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::DTD)
            m_xml.raiseError(QStringLiteral("DOCTYPE"));
        else if (token == QXmlStreamReader::StartElement)
            readTopElement();
        else if (token == QXmlStreamReader::EndElement)
            m_rootClosed = --m_depth == 0;
    }
    if (guard.hasEnded())
        rejectXml(tr("liian pitkä osa"));
    else if (m_xml.hasError())
        rejectXml(m_rootClosed ? tr("tiedostossa on toinen asiakirja") : m_xml.errorString());
    else if (!m_hasReport)
        m_sink.reject(1, "Document", m_content);
}

/** What is around the reports varies with message and envelope: every element is entered until a report is found. */
void CamtReader::readTopElement()
{
    static const QLatin1String reports[] = {QLatin1String("Stmt"), QLatin1String("Ntfctn"), QLatin1String("Rpt")};
    const QStringRef name = m_xml.name();
    if (std::find(std::begin(reports), std::end(reports), name) != std::end(reports)) {
        m_hasReport = true;
        readReportElement();
    } else if (name == QLatin1String("GrpHdr")) {
        static constexpr Path<CamtReader> paths[] = {
            {QLatin1String("CreDtTm"), readText<&CamtReader::m_groupTimestamp, CamtReader>},
        };
        readElement(paths, *this);
    } else {
        if (m_depth < 2)
            m_content = name.toString();
        checkDepth(++m_depth);
    }
}

void CamtReader::readReportElement()
{
    static constexpr Path<Report> paths[] = {
        {QLatin1String("CreDtTm"), readText<&Report::timestamp, Report>},
        {QLatin1String("Acct"), [](CamtReader &reader, Report &report) { reader.readAcctElement(report); }},
        {QLatin1String("Ntry"), [](CamtReader &reader, Report &report) { reader.readNtryElement(report); }},
    };
    Report report; // nothing of the report before: its account is another one
    report.timestamp = m_groupTimestamp;
    readElement(paths, report);
}

void CamtReader::readAcctElement(Report &report)
{
    struct Account {
        QString iban, other;
    };
    static constexpr Path<Account> paths[] = {
        {QLatin1String("Id/IBAN"), readText<&Account::iban, Account>},
        {QLatin1String("Id/Othr/Id"), readText<&Account::other, Account>},
    };
    Account account;
    readElement(paths, account);
    report.account = AccountNumber::parse(account.iban.isEmpty() ? account.other : account.iban);
    if (report.account.isEmpty())
        report.account = {account.iban, account.other}; // of no form that is known here
}

void CamtReader::readNtryElement(const Report &report)
{
    using Head = CamtEntryHead;
    static constexpr Path<Entry> paths[] = {
        {QLatin1String("Amt"), [](CamtReader &reader, Entry &entry) { entry.head.amount = reader.amount(); }},
        {QLatin1String("CdtDbtInd"), readHeadText<&Head::direction>},
        {QLatin1String("RvslInd"),
         [](CamtReader &reader, Entry &entry) { entry.head.reversal = isTrue(reader.text()); }},
        {QLatin1String("Sts"), readHeadText<&Head::status>}, // from version 07 on the code is in an element of its own
        {QLatin1String("BookgDt"),
         [](CamtReader &reader, Entry &entry) { reader.readDtElement(entry.head.bookingDate); }},
        {QLatin1String("ValDt"), [](CamtReader &reader, Entry &entry) { reader.readDtElement(entry.head.valueDate); }},
        {QLatin1String("AcctSvcrRef"),
         [](CamtReader &reader, Entry &entry) { entry.head.archiveId = reader.identification(); }},
        {QLatin1String("Chrgs/Amt"), [](CamtReader &reader, Entry &entry) { entry.head.charges += reader.charge(); }},
        {QLatin1String("Chrgs/Rcrd/Amt"),
         [](CamtReader &reader, Entry &entry) { entry.head.charges += reader.charge(); }},
        {QLatin1String("NtryDtls/TxDtls"), [](CamtReader &reader, Entry &entry) { reader.readTxDtlsElement(entry); }},
    };
    Entry entry;
    entry.head.lineNumber = m_xml.lineNumber();
    entry.head.timestamp = report.timestamp;
    entry.head.iban = report.account.iban;
    entry.head.bban = report.account.bban;
    readElement(paths, entry);
    if (m_xml.hasError())
        return; // the file ends within the entry: its rest is not known
    if (!entry.payments)
        entry.payments.emplace(m_sink, m_amountFormat, entry.head);
    entry.payments->finish();
}

/** A date, or a date and time: both begin with the date that counts. */
void CamtReader::readDtElement(QString &date)
{
    constexpr auto read = [](CamtReader &reader, QString &target) { target = reader.text(); };
    static constexpr Path<QString> paths[] = {{QLatin1String("Dt"), read}, {QLatin1String("DtTm"), read}};
    readElement(paths, date);
}

void CamtReader::readTxDtlsElement(Entry &entry)
{
    using Transaction = CamtTransaction;
    static constexpr Path<Transaction> paths[] = {
        {QLatin1String("Refs/AcctSvcrRef"),
         [](CamtReader &reader, Transaction &t) { t.archiveId = reader.identification(); }},
        {QLatin1String("Amt"), readAmount<&Transaction::amount>},
        {QLatin1String("CdtDbtInd"), readText<&Transaction::direction, Transaction>},
        {QLatin1String("AmtDtls/TxAmt/Amt"), readAmount<&Transaction::transactionAmount>},
        {QLatin1String("AmtDtls/CntrValAmt/Amt"), readAmount<&Transaction::counterValue>},
        {QLatin1String("Chrgs/Amt"), [](CamtReader &reader, Transaction &t) { t.charges += reader.charge(); }},
        {QLatin1String("Chrgs/Rcrd/Amt"), [](CamtReader &reader, Transaction &t) { t.charges += reader.charge(); }},
        {QLatin1String("RltdPties/Dbtr/Nm"), readText<&Transaction::debtor, Transaction>},
        {QLatin1String("RltdPties/Dbtr/Pty/Nm"), readText<&Transaction::debtor, Transaction>},
        {QLatin1String("RltdPties/UltmtDbtr/Nm"), readText<&Transaction::ultimateDebtor, Transaction>},
        {QLatin1String("RltdPties/UltmtDbtr/Pty/Nm"), readText<&Transaction::ultimateDebtor, Transaction>},
        {QLatin1String("RltdPties/Cdtr/Nm"), readText<&Transaction::creditor, Transaction>},
        {QLatin1String("RltdPties/Cdtr/Pty/Nm"), readText<&Transaction::creditor, Transaction>},
        {QLatin1String("RltdPties/UltmtCdtr/Nm"), readText<&Transaction::ultimateCreditor, Transaction>},
        {QLatin1String("RltdPties/UltmtCdtr/Pty/Nm"), readText<&Transaction::ultimateCreditor, Transaction>},
        {QLatin1String("RmtInf/Strd/CdtrRefInf/Ref"), readReference},
        {QLatin1String("RmtInf/Ustrd"), readMessage},
        {QLatin1String("RltdDts/AccptncDtTm"), readText<&Transaction::acceptanceDate, Transaction>},
        {QLatin1String("RltdDts/TxDtTm"), readText<&Transaction::transactionDate, Transaction>},
    };
    CamtTransaction transaction;
    transaction.lineNumber = m_xml.lineNumber();
    readElement(paths, transaction);
    if (m_xml.hasError())
        return;
    if (!entry.payments)
        entry.payments.emplace(m_sink, m_amountFormat, entry.head);
    entry.payments->add(transaction);
}

/** Of several references, say of invoices and credit notes in one payment, the first counts. */
void CamtReader::readReference(CamtReader &reader, CamtTransaction &transaction)
{
    const QString reference = reader.text();
    if (PaymentText::nationalReference(transaction.reference).isEmpty())
        transaction.reference = reference;
}

void CamtReader::readMessage(CamtReader &reader, CamtTransaction &transaction)
{
    const QString message = reader.text();
    if (transaction.messages.size() < 2) // whether it is the only one is all that matters
        transaction.messages.append(message);
}

/** Reads up to the end of the current element, what is in its children included. */
QString CamtReader::text()
{
    QString text;
    int depth = 1;
    while (readWithin(depth)) {
        if (m_xml.isCharacters() && text.size() < maxTextLength)
            text += m_xml.text().left(maxTextLength);
    }
    return text.simplified();
}

void CamtReader::skipElement()
{
    int depth = 1;
    while (readWithin(depth))
        ; // nothing is wanted
}

/**
 * Goes on within an element.
 * @param depth  counts the elements that are open, itself included
 * @return false at its end, and at the end of the file
 */
bool CamtReader::readWithin(int &depth)
{
    m_xml.readNext();
    if (m_xml.isStartElement())
        checkDepth(++depth);
    else if (m_xml.isEndElement())
        --depth;
    return depth > 0 && !m_xml.atEnd();
}

/** The parser's memory, and the time of its look for namespaces, grow with the depth. */
void CamtReader::checkDepth(int depth)
{
    if (depth > maxDepth)
        m_xml.raiseError(tr("liian monta sisäkkäistä elementtiä"));
}

QString CamtReader::identification()
{
    const QString identification = text();
    return identification == QLatin1String("NOTPROVIDED") ? QString() : identification;
}

CamtAmount CamtReader::amount()
{
    const QString currency = m_xml.attributes().value(QLatin1String("Ccy")).toString();
    return {text(), currency};
}

/** @return cents; 0 for what is no amount: charges only explain differences */
qint64 CamtReader::charge()
{
    qint64 cents = 0;
    return PaymentText::parseXmlAmount(m_amountFormat, text(), cents) ? cents : 0;
}

void CamtReader::rejectXml(const QString &cause)
{
    const QString column = QString::number(m_xml.columnNumber());
    m_sink.reject(m_xml.lineNumber(), "XML", tr("sarake %1: %2").arg(column, cause));
}
