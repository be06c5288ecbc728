#ifndef PRINTSCRIPTMANAGER_H
#define PRINTSCRIPTMANAGER_H

#include "scripthost.h"

#include <QPagedPaintDevice>
#include <QPrinter>

class PrintModel;

/**
 * Prints documents by a script that defines a global function `print()`; the script draws in millimetres through
 * PrintScriptEnvironment.
 */
class PrintScriptManager : public ScriptHost {
    Q_OBJECT
public:
    /** Bits of supportedOrientations(). */
    enum SupportedOrientation { portrait = 1, landscape = 2 };

    explicit PrintScriptManager(QObject *parent = nullptr); ///< nothing is loaded yet

    /** What the script's function of that name returns, a set of SupportedOrientation; portrait without it. */
    int supportedOrientations() const;

    /** Of the next print, whatever the script supports. */
    QPrinter::Orientation orientation() const { return m_orientation; }
    void setOrientation(QPrinter::Orientation orientation) { m_orientation = orientation; }
    QPagedPaintDevice::PageSize paperSize() const { return m_paperSize; }
    void setPaperSize(QPagedPaintDevice::PageSize size) { m_paperSize = size; }
    PrintModel *model() const { return m_model; }         ///< null until set
    void setModel(PrintModel *model) { m_model = model; } ///< not owned

    /**
     * Runs the script on a printer; pages outside the range are laid out but not painted. Without a loaded `print`
     * function nothing is done, and no file is made. Pages drawn before an exception stay in the document.
     *
     * A file is replaced only by a complete document, see lastError(); the printer is then of no more use: the library
     * goes on failing.
     * @param fromPage, toPage  inclusive, from 1
     * @param setPaperSize      whether paperSize() is set on the printer; orientation() always is
     */
    void print(QPrinter *printer, PrintModel *model, int fromPage, int toPage, bool setPaperSize);
    /** Prints all pages of model(); nothing without a model. */
    Q_INVOKABLE void print(QPrinter *printer);

private:
    QPrinter::Orientation m_orientation = QPrinter::Portrait;        ///< set on the printer by every print
    QPagedPaintDevice::PageSize m_paperSize = QPagedPaintDevice::A4; ///< set on the printer when the caller wants it
    PrintModel *m_model = nullptr;                                   ///< not owned
};

#endif
