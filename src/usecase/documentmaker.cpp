#include "documentmaker.h"

#include "usecaselistener.h"

namespace {

DocumentMaker::Source theSource;

} // namespace

void DocumentMaker::setSource(const Source &source) { theSource = source; }

DocumentMaker *DocumentMaker::get(UseCaseListener &listener, bool draws)
{
    QString reason;
    DocumentMaker *maker = theSource.load(reason);
    if (!maker)
        listener.fail(Failure::documentsUnavailable, {reason});
    else if (draws && theSource.startDrawing)
        theSource.startDrawing(*maker);
    return maker;
}
