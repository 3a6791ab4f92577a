#include "shell/periode_run.h"

#include <QString>

#include "core/shell/periode.h"

namespace kestrel::gui {

bool periode_acceptee(QWidget* parent, Dialogues& dialogues, const Etat& etat) {
    const Session& s = etat.session;
    OriginesPeriode o = origines_projet(s.chemin_energie);
    o.moy_mvt = "orbite du projet";
    const Erreur e = verifie_periode(s.j_debut, s.j_fin, s.pas_sim, etat.orbite.orb_moy_mvt, o);
    if (!e) return true;
    dialogues.message(parent, QString::fromStdString(texte_erreur(e)), Icone::avertissement);
    return false;
}

}  // namespace kestrel::gui
