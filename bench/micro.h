// Rows of the micro-benchmarks: ours and a peer.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

// Runs `work` in the timed loop, and uses its result.
template <class Work>
auto Timed(Work work) {
    return [work](benchmark::State& state) mutable {
        for (auto _ : state) {
            benchmark::DoNotOptimize(work());
        }
    };
}

// Registers "<name>/ours" and "<name>/peer", which run.py compares.
template <class Ours, class Peer>
void Row(const std::string& name, Ours ours, Peer peer, int threads = 1) {
    for (benchmark::internal::Benchmark* const side :
         {benchmark::RegisterBenchmark((name + "/ours").c_str(), Timed(ours)),
          benchmark::RegisterBenchmark((name + "/peer").c_str(), Timed(peer))}) {
        if (threads > 1) {
            side->Threads(threads)->UseRealTime();
        }
    }
}

void RegisterStringRows();
void RegisterLibraryRows();
void RegisterTextRows();
