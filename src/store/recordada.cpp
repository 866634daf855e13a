#include "store/recordada.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace nomira::store {

// La clave de una consulta: el número de su texto y sus parámetros con su
// tipo, sin ambigüedad entre un texto "1" y un entero 1. Se arma siempre en el
// mismo lugar: vale hasta la próxima.
std::string_view ConexionRecordada::clave(std::string_view sql,
                                          const std::vector<Valor>& parametros) {
    const auto id = sentenciaDe(sql).id;
    auto& k = clave_;
    k.assign(reinterpret_cast<const char*>(&id), sizeof id);
    for (const auto& v : parametros) {
        k += '\x1f';
        k += static_cast<char>('0' + v.index());
        if (const auto* s = std::get_if<std::string>(&v)) {
            k += *s;
        } else if (const auto* i = std::get_if<std::int64_t>(&v)) {
            k += std::to_string(*i);
        } else if (const auto* d = std::get_if<double>(&v)) {
            char bytes[sizeof(double)];
            std::memcpy(bytes, d, sizeof bytes);
            k.append(bytes, sizeof bytes);
        }
    }
    return k;
}

namespace {

bool esPalabra(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

}  // namespace

std::vector<std::string> tablasDeLaSentencia(std::string_view sql) {
    std::string texto(sql);
    std::transform(texto.begin(), texto.end(), texto.begin(),
                   [](unsigned char c) { return std::tolower(c); });
    std::vector<std::string> palabras;
    for (std::size_t i = 0; i < texto.size();) {
        if (texto[i] == '\'') {  // un literal no nombra tablas
            const auto fin = texto.find('\'', i + 1);
            i = fin == std::string::npos ? texto.size() : fin + 1;
        } else if (esPalabra(texto[i])) {
            std::size_t j = i;
            while (j < texto.size() && esPalabra(texto[j])) ++j;
            palabras.push_back(texto.substr(i, j - i));
            i = j;
        } else {
            ++i;
        }
    }
    std::vector<std::string> tablas;
    for (std::size_t i = 0; i + 1 < palabras.size(); ++i) {
        const auto& p = palabras[i];
        if (p != "from" && p != "join" && p != "into" && p != "update") continue;
        const auto& t = palabras[i + 1];
        if (t != "select" && std::find(tablas.begin(), tablas.end(), t) == tablas.end())
            tablas.push_back(t);
    }
    return tablas;
}

Resultado ConexionRecordada::consulta(std::string_view sql, const std::vector<Valor>& parametros) {
    const auto k = clave(sql, parametros);
    if (const auto* r = vigenteDe(k); r && r->crudo) {
        ++recordadas_;
        return r->resultado;
    }
    ++leidas_;
    auto r = base_.consulta(sql, parametros);
    // Lo que no nombra tablas no se recuerda: nada lo haría olvidar.
    if (!sentenciaDe(sql).tablas.empty()) guardar(std::string(k), sql, r);
    return r;
}

ConexionRecordada::Recuerdo* ConexionRecordada::vigenteDe(std::string_view clave) {
    const auto it = memoria_.find(clave);
    if (it == memoria_.end() || !vigente(it->second)) return nullptr;
    it->second.turno = turno_;
    return &it->second;
}

void ConexionRecordada::olvidarSinUso() {
    std::erase_if(memoria_, [&](const auto& e) { return e.second.turno < turno_; });
    ++turno_;
}

ConexionRecordada::Recuerdo& ConexionRecordada::guardar(std::string clave, std::string_view sql,
                                                        Resultado resultado) {
    Recuerdo recuerdo{general_, turno_, {}, std::move(resultado), {}};
    for (const auto t : sentenciaDe(sql).tablas) recuerdo.tablas.emplace_back(t, generaciones_[t]);
    return memoria_.insert_or_assign(std::move(clave), std::move(recuerdo)).first->second;
}

std::int64_t ConexionRecordada::ejecuta(std::string_view sql,
                                        const std::vector<Valor>& parametros) {
    const auto& tablas = sentenciaDe(sql).tablas;
    // DDL, SET y lo que no nombre tablas: se olvida todo.
    if (tablas.empty()) ++general_;
    for (const auto t : tablas) ++generaciones_[t];
    return base_.ejecuta(sql, parametros);
}

const ConexionRecordada::Sentencia& ConexionRecordada::sentenciaDe(std::string_view sql) {
    if (const auto* s = sentencias_.buscar(sql)) return *s;
    Sentencia nueva{static_cast<std::uint32_t>(sentencias_.size()), {}};
    for (const auto& t : tablasDeLaSentencia(sql)) {
        auto [i, nuevaTabla] = indiceDeTabla_.try_emplace(t, generaciones_.size());
        if (nuevaTabla) generaciones_.push_back(0);
        nueva.tablas.push_back(i->second);
    }
    return sentencias_.agregar(sql, std::move(nueva));
}

std::int64_t ConexionRecordada::ejecutaConCambio(std::string_view sql,
                                                 const std::vector<Valor>& parametros,
                                                 std::string_view consulta,
                                                 const std::vector<Valor>& parametrosConsulta,
                                                 const Cambio& cambio) {
    return escribeSobre(consulta, parametrosConsulta, [&](std::any* convertida) {
        const auto afectadas = ejecuta(sql, parametros);
        if (convertida) cambio(*convertida, afectadas);
        return afectadas;
    });
}

std::int64_t ConexionRecordada::escribeSobre(std::string_view consulta,
                                             const std::vector<Valor>& parametrosConsulta,
                                             const Escritura& escribir) {
    auto* recuerdo = vigenteDe(clave(consulta, parametrosConsulta));
    // Sin nada convertido que llevar al día, la escritura la hace olvidar.
    if (!recuerdo || !recuerdo->convertida.has_value()) return escribir(nullptr);
    // Los recuerdos no se borran mientras se escribe: sólo olvidarSinUso lo hace.
    const auto afectadas = escribir(&recuerdo->convertida);
    recuerdo->crudo = false;
    recuerdo->general = general_;
    for (auto& [tabla, gen] : recuerdo->tablas) gen = generaciones_[tabla];
    return afectadas;
}

void ConexionRecordada::deshacer() {
    ++general_;
    base_.deshacer();
}

bool ConexionRecordada::vigente(const Recuerdo& r) const {
    if (r.general != general_) return false;
    return std::all_of(r.tablas.begin(), r.tablas.end(),
                       [&](const auto& t) { return generaciones_[t.first] == t.second; });
}

void agregarNombre(Nombres& nombres, const FilaAlPaso& fila) {
    nombres.insert(fila.texto(0));
}

bool puedeEstar(Conexion& base, std::string_view consulta, const std::vector<Valor>& parametros,
                const std::string& nombre) {
    auto* recordada = dynamic_cast<ConexionRecordada*>(&base);
    return !recordada || recordada->convertida(consulta, parametros, agregarNombre)->count(nombre);
}

}  // namespace nomira::store
