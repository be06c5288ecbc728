#include "application.h"

#include "documentmaker.h"
#include "language.h"
#include "programstart.h"

#include <QCoreApplication>
#include <QFile>

#include <dlfcn.h>

namespace {

/** The library takes words such as -style off the line that it is given; they are ours to answer. */
int programNameOnly = 1;
char **theWords = nullptr;
bool isDrawing = false;

void *openModule()
{
    constexpr char name[] = "billora-documents.so";
    const QString path =
        QCoreApplication::applicationDirPath() + QLatin1String("/../lib/billora/modules/") + QLatin1String(name);
    void *module = ::dlopen(QFile::encodeName(path).constData(), RTLD_NOW);
    if (!module && !QFile::exists(path))
        module = ::dlopen(name, RTLD_NOW); // where the program was built, wherever it was copied to
    return module;
}

DocumentMaker *loadDocuments(QString &reason)
{
    using Entry = DocumentMaker *(*)();
    static DocumentMaker *maker = nullptr;
    if (maker)
        return maker;
    void *module = openModule();
    const Entry entry = module ? reinterpret_cast<Entry>(::dlsym(module, "billoraDocuments")) : nullptr;
    if (entry)
        maker = entry();
    else
        reason = QString::fromLocal8Bit(::dlerror());
    return maker;
}

/** The larger object takes the place of the small one; the library does not have one grow. */
void startDrawing(DocumentMaker &maker)
{
    if (isDrawing)
        return;
    isDrawing = true;
    delete QCoreApplication::instance();
    maker.startApplication(programNameOnly, theWords);
    ProgramStart::nameApplication();
    Language::renew();
}

} // namespace

void Application::start(char **argv)
{
    theWords = argv;
    new QCoreApplication(programNameOnly, argv); // never deleted but for the larger one
    ProgramStart::nameApplication();
    DocumentMaker::setSource({loadDocuments, startDrawing});
}
