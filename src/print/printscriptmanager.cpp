#include "printscriptmanager.h"

#include "printprelude.h"
#include "printscriptenvironment.h"

#include <QPainter>

#include <limits>

PrintScriptManager::PrintScriptManager(QObject *parent) : QObject(parent), m_script(printPrelude, "print") {}

bool PrintScriptManager::load(const QString &fileName) { return m_script.load(fileName); }

bool PrintScriptManager::loadFromSource(const QString &source, const QString &fileName)
{
    return m_script.loadFromSource(source, fileName);
}

int PrintScriptManager::supportedOrientations() const
{
    return m_script.callForNumber("supportedOrientations", portrait);
}

void PrintScriptManager::print(QPrinter *printer, PrintModel *model, int fromPage, int toPage, bool setPaperSize)
{
    if (!m_script.isRunnable())
        return;
    if (setPaperSize)
        printer->setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(m_paperSize)));
    printer->setPageOrientation(m_orientation == QPrinter::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer->setFullPage(true);
    QPainter painter(printer);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    {
        PrintScriptEnvironment environment(model, printer, &painter, fromPage, toPage);
        m_script.run(&environment);
    }
    painter.end();
    if (hasException())
        emit exceptionUncaught();
}

void PrintScriptManager::print(QPrinter *printer)
{
    if (m_model)
        print(printer, m_model, 0, std::numeric_limits<int>::max(), true);
}
