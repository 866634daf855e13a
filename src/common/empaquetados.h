#pragma once
// Columnas que guardan varios datos en un texto: personal.socmedica, horario,
// sexocon y configuracion.concopiativo. leer() tolera textos cortos o vacíos
// (lo que falta se lee como ""); texto() arma el valor que se guarda.
#include <string>
#include <string_view>

namespace nomira::common {

// "SiCSiNoNo", "NoASiSiSi25000": T.Afap/Perm. (1-2), BSE/Ap. (3), N.Fam. (4-5),
// L.19321 (6-7), Multi Emp. (8-9) y desde el 10 el monto del otro empleo.
struct SocMedica {
    std::string tafap, bseap, nfam, l19321, multiemp, montoOtroEmpleo;

    static SocMedica leer(std::string_view valor);
    std::string texto() const;  // concatena sin rellenar
    bool operator==(const SocMedica&) const = default;
};

// 50 caracteres: horario de trabajo (30), banco (6) y número de cuenta (14).
// Al leer, cada parte conserva sus blancos de relleno.
struct Horario {
    static constexpr std::size_t kAnchoHorario = 30, kAnchoBanco = 6, kAnchoCuenta = 14;

    std::string horario, banco, cuenta;

    static Horario leer(std::string_view valor);
    std::string texto() const;  // cada parte cortada y rellenada a su ancho
    bool operator==(const Horario&) const = default;
};

// "M" o "F" y luego "Si" o "No": si el cónyuge ingresa al SNS.
struct SexoCon {
    std::string sexo, ingresaSns;

    static SexoCon leer(std::string_view valor);
    std::string texto() const { return sexo + ingresaSns; }
    bool ingresa() const { return ingresaSns == "Si"; }
    bool operator==(const SexoCon&) const = default;
};

// "SiNo" y compañía: ¿con copiativo? y ¿imprime pesos?
struct ConCopiativo {
    std::string copiativo, imprimePesos;

    static ConCopiativo leer(std::string_view valor);
    std::string texto() const { return copiativo + imprimePesos; }
    bool conCopiativo() const { return copiativo == "Si"; }
    bool conPesos() const { return imprimePesos == "Si"; }
    bool operator==(const ConCopiativo&) const = default;
};

}  // namespace nomira::common
