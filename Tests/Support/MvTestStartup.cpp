// Every suite runs the same way from CTest, a shell or a debugger: on the offscreen platform, with a
// fixed hash seed and locale, and with any Qt warning (a broken connect, a painter misuse) fatal. This runs before
// main, so before the application object picks its platform and before anything can warn.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <QtGlobal>

namespace {

void mvPrepareTestRun()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FATAL_WARNINGS", "1");
    qSetGlobalQHashSeed(0);
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // Texts and numbers come out the same whatever the developer's locale.
    qputenv("LC_ALL", "C.UTF-8");
    // Qt warns, fatally here, when its runtime directory is not set or is open to others: a private
    // one lives as long as the run.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        static QTemporaryDir runtime(QDir::tempPath() + QStringLiteral("/mvtimeline-test-runtime-XXXXXX"));
        QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    }
#endif
}

}

Q_CONSTRUCTOR_FUNCTION(mvPrepareTestRun)
