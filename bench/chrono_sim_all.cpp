// Timed harness of the complete simulation window (a Qt program, not a
// Google Benchmark: the view needs a window system). It opens a power
// project, starts the run and reports:
//  - the 3D frame: mean and worst time of a frame rendered and read back;
//  - the tick: worst time of a Timer_sim_pwr tick that ran a step, against
//    the time of power_step alone on a copy of the same run;
//  - the redraw of the window that the tick asks for, run by the event loop.
// With --captures DIR it also lets the real timers run and saves the window
// every few seconds (for looking at it, not for the figures).
// Run under X: build/release/bin/chrono_sim_all [file.pwr] [--pas S] [--captures DIR]
#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <ctime>

#include "core/etat/etat.h"
#include "core/power/power_step.h"
#include "core/project/energie.h"
#include "power/pict_visu3d.h"
#include "power/power_sim_all.h"
#include "shell/dialogues.h"

using namespace kestrel;

namespace {

struct Mesure {
    double moyenne_ms = 0, pire_ms = 0;
    int n = 0;
    void ajoute(double ms) {
        moyenne_ms += (ms - moyenne_ms) / ++n;
        pire_ms = std::max(pire_ms, ms);
    }
};

// The machine may be shared: the figures are CPU time of the whole process
// (every thread, the software renderer's included), not wall time.
struct Chrono {
    double debut = cpu_ms();
    static double cpu_ms() {
        timespec t{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
        return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
    }
    double ms() const { return cpu_ms() - debut; }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QString pwr = QCoreApplication::applicationDirPath() + QStringLiteral("/examples/panneaux_externes.pwr");
    QString captures;
    int pas = 0;
    const QStringList args = app.arguments();
    for (int i = 1; i < args.size(); ++i) {
        if (args[i] == QStringLiteral("--captures") && i + 1 < args.size())
            captures = args[++i];
        else if (args[i] == QStringLiteral("--pas") && i + 1 < args.size())
            pas = args[++i].toInt();
        else
            pwr = args[i];
    }

    Etat etat;
    etat.session.dossier_depart = QCoreApplication::applicationDirPath().toStdString();
    if (Erreur e = charge_energie(etat, pwr.toStdString())) {
        std::fprintf(stderr, "%s\n", texte_erreur(e).c_str());
        return 1;
    }
    if (pas > 0) etat.session.pas_sim = pas;
    gui::DialoguesQt dlg;
    gui::power_sim_all fen(etat, dlg, {});
    fen.show();
    QCoreApplication::processEvents();
    if (captures.isEmpty()) {
        // The figures come from ticks run by hand, one at a time.
        for (auto* t : fen.findChildren<QTimer*>()) t->stop();
    }

    if (!captures.isEmpty()) {
        QDir().mkpath(captures);
        fen.cmd_lance_Click();
        int n = 0;
        QTimer prise;
        QObject::connect(&prise, &QTimer::timeout, [&] {
            // The screen as composed, the 3D view included.
            QGuiApplication::primaryScreen()->grabWindow(0).save(QStringLiteral("%1/sim_%2.png").arg(captures).arg(n, 2, 10, QLatin1Char('0')));
            if (++n >= 12) app.quit();
        });
        prise.start(3000);
        return app.exec();
    }

    gui::Pict_visu3d* vue = fen.vue();
    if (!vue) {
        std::printf("no OpenGL context: frame not measured\n");
    } else {
        vue->grabFramebuffer();  // first frame: context and textures
        Mesure image;
        for (int i = 0; i < 200; ++i) {
            const Chrono t;
            vue->grabFramebuffer();
            image.ajoute(t.ms());
        }
        std::printf("renderer: %s\n", qPrintable(vue->renderer()));
        std::printf("frame (render + read-back) %dx%d: mean %.3f ms, worst %.3f ms over %d\n", vue->width(),
                    vue->height(), image.moyenne_ms, image.pire_ms, image.n);
    }

    // The same steps as the window will run, on a copy, for power_step alone.
    Etat copie = etat;
    power_state_init(copie);
    copie.session.j_courant = copie.session.j_debut;
    Mesure pas_seul;
    for (int i = 0; i < 200; ++i) {
        copie.session.j_courant += copie.session.pas_sim / 86400.0;
        const Chrono t;
        power_step(copie);
        pas_seul.ajoute(t.ms());
    }

    // Ticks: every 20th runs a step (one a second of wall clock at 50 ms).
    fen.Timer_sim_pwr_Timer();  // the reset of the stopped window
    fen.cmd_lance_Click();
    // The redraw a tick asks for runs in the event loop: drained and timed
    // apart, so that the tick's figure is its own work.
    Mesure tick_pas, tick_vue, composition;
    for (int i = 0; i < 200 * 20; ++i) {
        const int avant = fen.sim_state();
        {
            const Chrono t;
            QCoreApplication::processEvents();
            composition.ajoute(t.ms());
        }
        const Chrono t;
        const double j0 = etat.session.j_courant;
        fen.Timer_sim_pwr_Timer();
        (etat.session.j_courant != j0 ? tick_pas : tick_vue).ajoute(t.ms());
        if (avant != fen.sim_state()) break;
    }
    std::printf("power_step alone (pas_sim %d s): mean %.3f ms, worst %.3f ms\n", etat.session.pas_sim,
                pas_seul.moyenne_ms, pas_seul.pire_ms);
    std::printf("tick with a step: mean %.3f ms, worst %.3f ms over %d\n", tick_pas.moyenne_ms, tick_pas.pire_ms,
                tick_pas.n);
    std::printf("tick without a step (view only): mean %.3f ms, worst %.3f ms over %d\n", tick_vue.moyenne_ms,
                tick_vue.pire_ms, tick_vue.n);
    std::printf("window redraw after a tick (event loop): mean %.3f ms, worst %.3f ms\n", composition.moyenne_ms,
                composition.pire_ms);
    return 0;
}
