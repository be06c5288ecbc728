#include <QApplication>
#include <QTimer>

/** An application that does nothing, started as our programs are. */
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    QTimer::singleShot(0, &QApplication::quit);
    return QApplication::exec();
}
