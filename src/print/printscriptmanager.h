#ifndef PRINTSCRIPTMANAGER_H
#define PRINTSCRIPTMANAGER_H

#include "scriptrunner.h"

#include <QObject>
#include <QPagedPaintDevice>
#include <QPrinter>

class PrintModel;

/**
 * Prints documents by a script that defines a global function `print()`; the script draws in millimetres through
 * PrintScriptEnvironment. One manager loads one script and prints any number of documents, each with a fresh
 * environment.
 *
 * Errors of the script do not show in the results of load() and print(): ask hasException() after either. The exception
 * is that of the last load or print.
 */
class PrintScriptManager : public QObject {
    Q_OBJECT
public:
    /** Bits of supportedOrientations(). */
    enum SupportedOrientation { portrait = 1, landscape = 2 };

    explicit PrintScriptManager(QObject *parent = nullptr); ///< nothing is loaded yet

    /** Loads a UTF-8 file or resource. @return false, with nothing loaded, when it cannot be opened */
    [[nodiscard]] bool load(const QString &fileName);
    /** @return true always; fileName stands in error messages and back traces */
    bool loadFromSource(const QString &source, const QString &fileName);

    /** Whether the loaded script has the function that makes a document. */
    bool isRunnable() const { return m_script.isRunnable(); }

    /** See ScriptRunner; told for the last load or print only. */
    bool hasException() const { return m_script.hasException(); }
    QString exception() const { return m_script.exception(); }
    int exceptionLineNumber() const { return m_script.exceptionLineNumber(); }
    QStringList backTrace() const { return m_script.backTrace(); }

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
     * A file is replaced only by a complete document, see lastError().
     * @param fromPage, toPage  inclusive, from 1
     * @param setPaperSize      whether paperSize() is set on the printer; orientation() always is
     */
    void print(QPrinter *printer, PrintModel *model, int fromPage, int toPage, bool setPaperSize);
    /**
     * Why the last print() left no document in the printer's file; empty when it did. The printer is then of no more
     * use: the library goes on failing.
     */
    QString lastError() const { return m_lastError; }
    /** Prints all pages of model(); nothing without a model. */
    Q_INVOKABLE void print(QPrinter *printer);

    ScriptRunner &script() { return m_script; } ///< owned

signals:
    void exceptionUncaught(); ///< after a print whose script threw

private:
    mutable ScriptRunner m_script;                            ///< mutable: asking for orientations runs a function
    QPrinter::Orientation m_orientation = QPrinter::Portrait; ///< set on the printer by every print
    QPagedPaintDevice::PageSize m_paperSize = QPagedPaintDevice::A4; ///< set on the printer when the caller wants it
    PrintModel *m_model = nullptr;                                   ///< not owned
    QString m_lastError;                                             ///< empty when the last print left its document
};

#endif
