// The micro-benchmarks, with the options of Google Benchmark. They create files in the working
// directory.
#include <QCoreApplication>

#include "bench/micro.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const QCoreApplication application(argc, argv);
    RegisterStringRows();
    RegisterLibraryRows();
    RegisterTextRows();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
