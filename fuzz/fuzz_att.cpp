// An attitude project (.att) from the fuzzer's bytes: the record, the
// listing, then a short run.
#include "core/etat/etat.h"
#include "core/project/liste_champs.h"
#include "core/project/fichiers_binaires.h"
#include "court.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* d, std::size_t n) {
    Etat e;
    charge_attitude_octets(e, fuzz::octets(d, n));
    champs_attitude(e.att);
    fuzz::court_run(e);
    return 0;
}
