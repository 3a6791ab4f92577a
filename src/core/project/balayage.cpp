#include "core/project/balayage.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace kestrel {

namespace {

bool lit_nombre(std::string_view t, double& x) {
    const auto r = std::from_chars(t.data(), t.data() + t.size(), x);
    return !t.empty() && r.ec == std::errc() && r.ptr == t.data() + t.size();
}

std::vector<std::string_view> coupe(std::string_view t, char sep) {
    std::vector<std::string_view> parts;
    for (std::size_t p = 0;;) {
        const std::size_t q = t.find(sep, p);
        parts.push_back(t.substr(p, q == std::string_view::npos ? std::string_view::npos : q - p));
        if (q == std::string_view::npos) return parts;
        p = q + 1;
    }
}

}  // namespace

std::vector<double> lit_valeurs(const std::string& texte, std::string& erreur) {
    std::vector<double> v;
    const auto intervalle = coupe(texte, ':');
    if (intervalle.size() == 3) {
        double debut, fin, n;
        if (!lit_nombre(intervalle[0], debut) || !lit_nombre(intervalle[1], fin) ||
            !lit_nombre(intervalle[2], n) || n < 1 || n != static_cast<double>(static_cast<long>(n)) ||
            n > 1e6) {
            erreur = "« " + texte + " » : début:fin:nombre attendu, nombre entier de 1 à 1000000";
            return {};
        }
        const long k = static_cast<long>(n);
        for (long i = 0; i < k; ++i)
            v.push_back(k == 1 ? debut : (i == k - 1 ? fin : debut + (fin - debut) * i / (k - 1)));
        return v;
    }
    if (intervalle.size() != 1) {
        erreur = "« " + texte + " » : v1,v2,... ou début:fin:nombre attendu";
        return {};
    }
    for (std::string_view t : coupe(texte, ',')) {
        double x;
        if (!lit_nombre(t, x)) {
            erreur = "« " + std::string(t) + " » n'est pas un nombre";
            return {};
        }
        v.push_back(x);
    }
    return v;
}

std::size_t nb_cas(const std::vector<Balayage>& b) {
    std::size_t n = 1;
    for (const Balayage& s : b) n *= s.valeurs.size();
    return n;
}

std::vector<double> valeurs_du_cas(const std::vector<Balayage>& b, std::size_t i) {
    std::vector<double> v(b.size());
    for (std::size_t s = b.size(); s-- > 0;) {
        v[s] = b[s].valeurs[i % b[s].valeurs.size()];
        i /= b[s].valeurs.size();
    }
    return v;
}

Tranche tranche(std::size_t total, std::size_t k, std::size_t n) {
    return {total * (k - 1) / n, total * k / n};
}

void lance_cas(Tranche t, unsigned jobs, const std::function<std::string(std::size_t)>& calcule,
               const std::function<void(std::size_t, const std::string&)>& rend) {
    if (t.fin <= t.debut) return;
    const std::size_t n = t.fin - t.debut;
    std::vector<std::optional<std::string>> faits(n);
    std::mutex verrou;
    std::condition_variable pret;
    std::atomic<std::size_t> suivant{0};
    auto travaille = [&] {
        for (std::size_t i; (i = suivant++) < n;) {
            std::string r = calcule(t.debut + i);
            {
                std::lock_guard<std::mutex> g(verrou);
                faits[i] = std::move(r);
            }
            pret.notify_one();
        }
    };
    std::vector<std::thread> fils;
    const unsigned nb = std::max(1u, std::min<unsigned>(jobs, static_cast<unsigned>(n)));
    for (unsigned f = 0; f < nb; ++f) fils.emplace_back(travaille);
    for (std::size_t i = 0; i < n; ++i) {
        std::string r;
        {
            std::unique_lock<std::mutex> g(verrou);
            pret.wait(g, [&] { return faits[i].has_value(); });
            r = std::move(*faits[i]);
            faits[i].reset();
        }
        rend(t.debut + i, r);
    }
    for (auto& f : fils) f.join();
}

}  // namespace kestrel
