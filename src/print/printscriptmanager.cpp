#include "printscriptmanager.h"

#include "pdfoutput.h"
#include "printmodel.h"
#include "printprelude.h"
#include "printscriptenvironment.h"

#include <QPainter>

#include <limits>

PrintScriptManager::PrintScriptManager(QObject *parent) : ScriptHost(printPrelude, "print", parent) {}

int PrintScriptManager::supportedOrientations() const
{
    return m_script.callForNumber("supportedOrientations", portrait);
}

void PrintScriptManager::print(QPrinter *printer, PrintModel *model, int fromPage, int toPage, bool setPaperSize)
{
    if (!m_script.isRunnable())
        return;
    m_lastError.clear();
    if (setPaperSize)
        printer->setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(m_paperSize)));
    printer->setPageOrientation(m_orientation == QPrinter::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer->setFullPage(true);
    PdfOutput output(printer, model->date());
    QPainter painter;
    if (!output.begin(painter)) {
        m_script.clearExceptions();
        m_lastError = output.errorString().isEmpty() ? tr("Tiedostoon ei voi kirjoittaa") : output.errorString();
        return;
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    {
        PrintScriptEnvironment environment(model, printer, &painter, fromPage, toPage);
        m_script.run(&environment);
    }
    painter.end();
    if (!output.commit())
        m_lastError = output.errorString();
    if (hasException())
        emit exceptionUncaught();
}

void PrintScriptManager::print(QPrinter *printer)
{
    if (m_model)
        print(printer, m_model, 0, std::numeric_limits<int>::max(), true);
}
