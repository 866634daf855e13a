#include "common/contrasena.h"

#include <charconv>
#include <optional>
#include <vector>

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include "common/fallo.h"

namespace nomira::common {

namespace {

constexpr std::string_view kEsquema = "pbkdf2-sha256";
// Lo que se recomienda hoy para SHA-256. Un hash guardado con menos vueltas se
// sigue aceptando y se rehace al entrar.
constexpr int kIteraciones = 600'000;
constexpr std::size_t kLargoSal = 16;
constexpr std::size_t kLargoHash = 32;
// Un texto guardado no puede pedir una espera arbitraria al verificar.
constexpr int kMaximoIteraciones = 10'000'000;

using Bytes = std::vector<unsigned char>;

std::string aHex(const Bytes& b) {
    static constexpr char cifras[] = "0123456789abcdef";
    std::string r;
    for (unsigned char c : b) {
        r += cifras[c >> 4];
        r += cifras[c & 0x0F];
    }
    return r;
}

std::optional<Bytes> desdeHex(std::string_view t) {
    if (t.empty() || t.size() % 2 != 0) return std::nullopt;
    Bytes r(t.size() / 2);
    for (std::size_t i = 0; i < r.size(); ++i) {
        const auto [fin, error] = std::from_chars(t.data() + 2 * i, t.data() + 2 * i + 2, r[i], 16);
        if (error != std::errc() || fin != t.data() + 2 * i + 2) return std::nullopt;
    }
    return r;
}

Bytes derivar(std::string_view clave, const Bytes& sal, int iteraciones, std::size_t largo) {
    Bytes r(largo);
    if (PKCS5_PBKDF2_HMAC(clave.data(), static_cast<int>(clave.size()), sal.data(),
                          static_cast<int>(sal.size()), iteraciones, EVP_sha256(),
                          static_cast<int>(largo), r.data()) != 1) {
        throw Fallo(51, "Error interno al calcular el hash de la contraseña");
    }
    return r;
}

}  // namespace

std::string hashContrasena(std::string_view clave) {
    Bytes sal(kLargoSal);
    if (RAND_bytes(sal.data(), static_cast<int>(sal.size())) != 1) {
        throw Fallo(51, "Error interno al generar la sal de la contraseña");
    }
    const Bytes hash = derivar(clave, sal, kIteraciones, kLargoHash);
    return std::string(kEsquema) + "$" + std::to_string(kIteraciones) + "$" + aHex(sal) + "$" +
           aHex(hash);
}

namespace {

struct HashGuardado {
    int iteraciones;
    Bytes sal, hash;
};

std::optional<HashGuardado> leerGuardado(std::string_view guardado) {
    std::string_view partes[4];
    for (int i = 0; i < 3; ++i) {
        const auto pesos = guardado.find('$');
        if (pesos == std::string_view::npos) return std::nullopt;
        partes[i] = guardado.substr(0, pesos);
        guardado.remove_prefix(pesos + 1);
    }
    partes[3] = guardado;
    if (partes[0] != kEsquema) return std::nullopt;

    int iteraciones = 0;
    const auto [fin, error] =
        std::from_chars(partes[1].data(), partes[1].data() + partes[1].size(), iteraciones);
    if (error != std::errc() || fin != partes[1].data() + partes[1].size() || iteraciones < 1 ||
        iteraciones > kMaximoIteraciones) {
        return std::nullopt;
    }
    auto sal = desdeHex(partes[2]);
    auto esperado = desdeHex(partes[3]);
    if (!sal || !esperado || esperado->size() > 64) return std::nullopt;
    return HashGuardado{iteraciones, std::move(*sal), std::move(*esperado)};
}

}  // namespace

bool verificaContrasena(std::string_view clave, std::string_view guardado) {
    const auto g = leerGuardado(guardado);
    if (!g) return false;
    const Bytes calculado = derivar(clave, g->sal, g->iteraciones, g->hash.size());
    return CRYPTO_memcmp(calculado.data(), g->hash.data(), calculado.size()) == 0;
}

bool hashAnticuado(std::string_view guardado) {
    const auto g = leerGuardado(guardado);
    return g && g->iteraciones < kIteraciones;
}

}  // namespace nomira::common
