// A power project (.pwr) from the fuzzer's bytes: the reader, the listing,
// then a short run. What was read must also write and read back.
#include "core/etat/etat.h"
#include "core/project/encodage.h"
#include "core/project/liste_champs.h"
#include "core/project/energie.h"
#include "court.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* d, std::size_t n) {
    Etat e;
    if (charge_energie_octets(e, fuzz::octets(d, n))) return 0;
    champs_energie(e.pwr, e.session);
    const auto ecrit = vers_cp1252(texte_energie(e));
    fuzz::exige(ecrit.has_value(), "le projet lu s'écrit en Windows-1252");
    Etat relu;
    fuzz::exige(!charge_energie_octets(relu, *ecrit), "le projet écrit se relit");
    fuzz::court_run(e);
    return 0;
}
