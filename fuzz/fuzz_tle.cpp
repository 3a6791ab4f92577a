// A two-line element set from the fuzzer's bytes: the reader, then a short
// run over the default period from the orbit it gave.
#include "core/etat/etat.h"
#include "core/project/tle.h"
#include "court.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* d, std::size_t n) {
    Etat e;
    std::string nom;
    if (lit_tle(fuzz::octets(d, n), e.orbite, nom)) return 0;
    periode_par_defaut(e);
    fuzz::court_run(e);
    return 0;
}
