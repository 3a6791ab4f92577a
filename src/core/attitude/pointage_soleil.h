// Sun pointing behind the orbit window's "Pointage soleil" button.
#pragma once
#include "core/shell/erreur.h"

namespace kestrel {

struct Etat;

// yd cleared, the Sun placed at `date` (days since 1950), then the pointing
// angles built from the direction beside the Sun vector. That direction is
// never filled, so its normalisation divides by a zero length: the call ends
// with CodeErreur::faute_calcul ("pointage_soleil") and yd left at zero.
Erreur pointage_soleil(Etat& etat, double date);

}  // namespace kestrel
