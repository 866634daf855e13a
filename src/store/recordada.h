#pragma once
// Una conexión que recuerda lo que leyó mientras dura una corrida larga (la
// liquidación de toda una empresa): la misma consulta con los mismos
// parámetros no vuelve a la base mientras nadie haya escrito, por esta misma
// conexión, en alguna de las tablas que lee. Lo que se escribe pasa directo a
// la base y hace olvidar lo leído de esas tablas; deshacer una transacción, o
// una sentencia que no se reconoce, hace olvidar todo.
//
// Lo que otro proceso escriba durante la corrida no se ve hasta que la
// conexión recordada se termina: la corrida trabaja sobre los conceptos, la
// empresa y las personas como estaban al empezar.
#include <any>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "store/conexion.h"
#include "store/por_sentencia.h"

namespace nomira::store {

class ConexionRecordada : public Conexion {
  public:
    explicit ConexionRecordada(Conexion& base) : base_(base) {}

    Motor motor() const override { return base_.motor(); }
    const std::string& destino() const override { return base_.destino(); }
    Resultado consulta(std::string_view sql, const std::vector<Valor>& parametros = {}) override;
    // Fila por fila no se recuerda: va siempre a la base.
    void recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                  const PorFila& porFila) override {
        base_.recorrer(sql, parametros, porFila);
    }
    std::int64_t ejecuta(std::string_view sql, const std::vector<Valor>& parametros = {}) override;
    void comenzar() override { base_.comenzar(); }
    void confirmar() override { base_.confirmar(); }
    void deshacer() override;

    // Una escritura cuyo efecto sobre una consulta recordada y convertida (ver
    // convertida) se conoce: se ejecuta y, si lo convertido estaba vigente, el
    // cambio lo lleva al día y sigue vigente en lugar de volver a leerse. Lo
    // crudo de esa consulta deja de valer: una consulta() vuelve a la base.
    using Cambio = std::function<void(std::any& convertida, std::int64_t afectadas)>;
    std::int64_t ejecutaConCambio(std::string_view sql, const std::vector<Valor>& parametros,
                                  std::string_view consulta,
                                  const std::vector<Valor>& parametrosConsulta,
                                  const Cambio& cambio);
    // Lo mismo cuando qué se escribe depende de lo convertido: `escribir` lo
    // recibe (nulo si no está vigente), escribe por esta conexión y lo deja
    // como queda después de escribir.
    using Escritura = std::function<std::int64_t(std::any* convertida)>;
    std::int64_t escribeSobre(std::string_view consulta,
                              const std::vector<Valor>& parametrosConsulta,
                              const Escritura& escribir);

    // Lo recordado de una consulta ya convertido por quien la lee (las filas del
    // mes como las usan los cálculos): se convierte fila por fila al leerla, sin
    // guardar lo crudo, se comparte sin copiarse y se olvida con ella o cuando una
    // escritura la cambia. Se guarda como std::shared_ptr<T>: un Cambio puede
    // llevarla al día en su lugar cuando nadie más la tiene (use_count() == 1).
    template <class T>
    std::shared_ptr<const T> convertida(std::string_view sql, const std::vector<Valor>& parametros,
                                        void (*agregar)(T&, const FilaAlPaso&)) {
        if (auto t = convertidaRecordada<T>(sql, parametros)) {
            ++recordadas_;
            return t;
        }
        ++leidas_;
        auto t = std::make_shared<T>();
        base_.recorrer(sql, parametros, [&](const FilaAlPaso& f) { agregar(*t, f); });
        auto& r = guardar(std::string(clave(sql, parametros)), sql, {});
        r.crudo = false;
        r.convertida = t;
        return t;
    }

    // Lo convertido como T de esa consulta, vigente, sin ir a la base; nulo si
    // no lo hay.
    template <class T>
    std::shared_ptr<const T> convertidaRecordada(std::string_view sql,
                                                 const std::vector<Valor>& parametros) {
        const auto* r = vigenteDe(clave(sql, parametros));
        const auto* t = r ? std::any_cast<std::shared_ptr<T>>(&r->convertida) : nullptr;
        return t ? *t : nullptr;
    }

    // Olvida lo que no se usó desde la llamada anterior: entre persona y persona
    // de una corrida quedan la empresa, los conceptos y las escalas, no las
    // filas de la persona anterior.
    void olvidarSinUso();

    // Cuántas consultas se respondieron de memoria y cuántas fueron a la base.
    std::size_t recordadas() const { return recordadas_; }
    std::size_t leidas() const { return leidas_; }

  private:
    // Cada escritura en una tabla sube su generación; un recuerdo vale mientras
    // las tablas que leyó sigan en la generación en que las leyó. Olvidar todo
    // es subir la generación general.
    struct Recuerdo {
        std::uint64_t general = 0;
        std::uint64_t turno = 0;  // el de su último uso (olvidarSinUso)
        std::vector<std::pair<std::size_t, std::uint64_t>> tablas;  // índice, generación
        Resultado resultado;
        std::any convertida;  // vacía hasta que alguien la pide
        bool crudo = true;    // resultado vale; si no, sólo lo convertido
    };
    Recuerdo* vigenteDe(std::string_view clave);  // nulo si no lo hay o ya no vale
    Recuerdo& guardar(std::string clave, std::string_view sql, Resultado resultado);
    bool vigente(const Recuerdo& r) const;
    // Cada texto de sentencia, una vez: son pocos y se repiten mucho. El número
    // abrevia el texto en las claves.
    struct Sentencia {
        std::uint32_t id;
        std::vector<std::size_t> tablas;  // las de tablasDeLaSentencia, por su índice
    };
    const Sentencia& sentenciaDe(std::string_view sql);
    std::string_view clave(std::string_view sql, const std::vector<Valor>& parametros);

    Conexion& base_;
    MapaPorTexto<Recuerdo> memoria_;
    // La generación de cada tabla por su índice; los nombres, una vez.
    std::vector<std::uint64_t> generaciones_;
    MapaPorTexto<std::size_t> indiceDeTabla_;
    std::string clave_;
    PorSentencia<Sentencia> sentencias_;
    std::uint64_t general_ = 0, turno_ = 0;
    std::size_t recordadas_ = 0, leidas_ = 0;
};

// Lo convertido como T, para que un Cambio lo lleve al día: en su lugar si
// nadie más lo tiene y si no una copia, que cuesta menos que volver a leerlo.
// Nulo (y se olvida) si lo convertido no es T.
template <class T>
T* paraCambiar(std::any& convertida) {
    auto* t = std::any_cast<std::shared_ptr<T>>(&convertida);
    if (!t) {
        convertida.reset();
        return nullptr;
    }
    if (t->use_count() > 1) *t = std::make_shared<T>(**t);
    return t->get();
}

// La consulta convertida fila por fila por `agregar`: por una conexión que
// recuerda, una vez por lectura; por otra, cada vez.
template <class T>
std::shared_ptr<const T> consultaConvertida(Conexion& base, std::string_view sql,
                                            const std::vector<Valor>& parametros,
                                            void (*agregar)(T&, const FilaAlPaso&)) {
    if (auto* recordada = dynamic_cast<ConexionRecordada*>(&base))
        return recordada->convertida(sql, parametros, agregar);
    auto t = std::make_shared<T>();
    base.recorrer(sql, parametros, [&](const FilaAlPaso& f) { agregar(*t, f); });
    return t;
}

// Los nombres (una columna) que da una consulta convertida con agregarNombre.
using Nombres = std::set<std::string>;
void agregarNombre(Nombres& nombres, const FilaAlPaso& fila);

// Para no hacer por cada persona una consulta que casi siempre viene vacía: si
// `nombre` está entre los que da `consulta` (los de toda la empresa que podrían
// tener algo). Por una conexión que recuerda, la consulta se lee una vez por
// corrida; por otra, la respuesta es siempre que sí: hay que buscar.
bool puedeEstar(Conexion& base, std::string_view consulta, const std::vector<Valor>& parametros,
                const std::string& nombre);

// Las tablas que nombra una sentencia: las que siguen a FROM, JOIN, INTO y
// UPDATE, en minúsculas y sin repetir. Vacío si no nombra ninguna.
std::vector<std::string> tablasDeLaSentencia(std::string_view sql);

}  // namespace nomira::store
