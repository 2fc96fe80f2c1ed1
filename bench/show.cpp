// What opening the editor costs without a window: Show from the creation of the form to the moment where it is ready,
// with a full job and a language file, and the rule pass alone.
#include <benchmark/benchmark.h>

#include "bench/Editor.h"
#include "editor/rules/RefreshPageStates.h"

namespace {

using namespace kestedit;
using bench::Editor;

void saveFullJob(Editor& editor) {
    editor.show("New", [](frmEdit& form) {
        form.onTextTyped(form.dxName, "full");
        form.onCommand(form.cmdSave);
    });
    bench::letAge();
}

void showNewJob(benchmark::State& state) {
    Editor editor;
    for (auto round : state)
        editor.show("New", [](frmEdit& form) { benchmark::DoNotOptimize(form.Caption); });
}
BENCHMARK(showNewJob)->Unit(benchmark::kMicrosecond);

void showFullJob(benchmark::State& state) {
    Editor editor;
    saveFullJob(editor);
    for (auto round : state)
        editor.show("Edit", [](frmEdit& form) { benchmark::DoNotOptimize(form.Caption); });
}
BENCHMARK(showFullJob)->Unit(benchmark::kMicrosecond);

void rulePass(benchmark::State& state) {
    Editor editor;
    saveFullJob(editor);
    editor.show("Edit", [&state](frmEdit& form) {
        for (auto round : state)
            RefreshPageStates(form, "all", 4, 0);
    });
}
BENCHMARK(rulePass)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
