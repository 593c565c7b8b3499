// The smallest program on Qt Core: what the start of lanterra-cli is measured against.

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    std::puts("smallest");
    return 0;
}
