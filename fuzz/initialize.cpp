#include <QCoreApplication>

// The database driver is a plugin, which Qt looks for beside the application.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    static const QCoreApplication application(*argc, *argv);
    return 0;
}
