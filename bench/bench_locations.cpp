// SPDX-License-Identifier: GPL-3.0-or-later
// How quickly the location editor opens: the window built, the location shown and the state
// list read from the city database (offscreen), and the city list of one state.
#include "model/location.h"
#include "ui/common/messageservice.h"
#include "ui/locations/frmlocation.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

struct Places {
    explicit Places(const QString& folder) : Context{Messages, Table, CurLoc, DefLoc, folder}
    {
        Table[1] = {"Alexandria, LA", 92.42, 31.25, 6};
    }
    MessageService Messages;
    LocationTable Table;
    std::int16_t CurLoc = 1;
    std::string DefLoc = "1";
    LocationContext Context;
};

QString CityFolder(QTemporaryDir& dir)
{
    QFile::copy(QStringLiteral(QUILLMERE_ENCDB), dir.filePath(QStringLiteral("Encdb.MDB")));
    return dir.path();
}

void BM_OpenEditorAndFillStates(benchmark::State& state)
{
    QTemporaryDir dir;
    Places places(CityFolder(dir));
    for (auto _ : state) {
        FrmLocation editor(places.Context);
        editor.show();
        QApplication::processEvents();
        if (editor.Combo[0]->count() < 200)
            state.SkipWithError("the state list was not filled");
    }
}

void BM_ChooseState(benchmark::State& state)
{
    QTemporaryDir dir;
    Places places(CityFolder(dir));
    FrmLocation editor(places.Context);
    editor.show();
    editor.Combo[0]->setCurrentIndex(editor.Combo[0]->findText(QStringLiteral("TX")));
    for (auto _ : state) {
        editor.Combo_Click(0);
        benchmark::DoNotOptimize(editor.Combo[1]->count());
    }
}

} // namespace

BENCHMARK(BM_OpenEditorAndFillStates)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ChooseState)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QTemporaryDir home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("QUILLMERE_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    QApplication qapp(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
