#pragma once
// La conexión con la base: una interfaz pequeña que implementan SQLite y PostgreSQL.
// Todo SQL se escribe una sola vez, con parámetros "?" enlazados.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "common/fallo.h"

namespace nomira::store {

struct Nulo {
    bool operator==(const Nulo&) const = default;
};

// Un valor de columna o de parámetro. Las fechas viajan como texto "aaaa-mm-dd";
// el dinero como double (se lee siempre a través de Dinero).
using Valor = std::variant<Nulo, std::int64_t, double, std::string>;

// Un fallo del motor de base de datos. Numeración:
//   3000 + código primario de SQLite (3005 ocupada, 3019 restricción...);
//   3100 + clase SQLSTATE de PostgreSQL cuando es numérica (3108 conexión,
//          3123 restricción, 3142 sintaxis), 3199 para las clases con letras;
//   3200 uso indebido de la conexión (confirmar sin comenzar, columna
//        inexistente, varias sentencias en un texto).
class ErrorBase : public common::Fallo {
  public:
    using common::Fallo::Fallo;
};

constexpr int kErrorSqlite = 3000;
constexpr int kErrorPostgres = 3100;
constexpr int kErrorPostgresConexion = 3108;
constexpr int kErrorUso = 3200;

// Un valor tal como se lee, sin copiarlo: el texto es una vista sobre lo leído.
using Celda = std::variant<Nulo, std::int64_t, double, std::string_view>;
Celda celdaDe(const Valor& v);
// La copia que sigue valiendo después de la lectura.
Valor valorDe(const Celda& c);

// Las conversiones de una columna leída, las mismas para Fila y FilaAlPaso.
// Texto: Null da ""; un número se convierte a texto. Números: Null y "" dan 0;
// un texto con número se convierte.
std::string textoDe(const Celda& c);
void textoEn(const Celda& c, std::string& destino);  // lo mismo, sobre un texto que ya está
std::int64_t enteroDe(const Celda& c);
double realDe(const Celda& c);
bool esNuloDe(const Celda& c);  // Null o ""

// La posición de la columna (sin distinguir mayúsculas), buscando desde
// `desde`: los lectores las piden casi siempre en su orden.
std::size_t posicionDe(const std::vector<std::string>& columnas, std::string_view columna,
                       std::size_t desde = 0);

// Una fila leída: columnas por nombre o por posición; Null y "" se leen igual.
// Los nombres de columna se comparten entre las filas de un resultado, así una
// fila sigue siendo válida aunque el Resultado se mueva o se descarte. Una fila
// no cambia: sus copias comparten los valores.
class Fila {
  public:
    using Columnas = std::shared_ptr<const std::vector<std::string>>;

    Fila(Columnas columnas, std::vector<Valor> valores)
        : columnas_(std::move(columnas)),
          valores_(std::make_shared<const std::vector<Valor>>(std::move(valores))) {}
    Fila(const std::vector<std::string>* columnas, std::vector<Valor> valores)
        : Fila(std::make_shared<const std::vector<std::string>>(*columnas), std::move(valores)) {}
    // Otros valores con las columnas de `modelo`.
    Fila(const Fila& modelo, std::vector<Valor> valores)
        : Fila(modelo.columnas_, std::move(valores)) {}

    const Valor& valor(std::size_t posicion) const { return valores_->at(posicion); }
    const Valor& valor(std::string_view columna) const;
    bool esNulo(std::string_view columna) const;

    // Texto: Null da ""; un número se convierte a texto.
    std::string texto(std::string_view columna) const;
    std::string texto(std::size_t posicion) const;
    void textoEn(std::size_t posicion, std::string& destino) const {
        store::textoEn(celdaDe(valor(posicion)), destino);
    }
    // Números: Null y "" dan 0; un texto con número se convierte.
    std::int64_t entero(std::string_view columna) const;
    double real(std::string_view columna) const;
    std::int64_t entero(std::size_t posicion) const;
    double real(std::size_t posicion) const;
    bool esNulo(std::size_t posicion) const;
    const std::vector<std::string>& columnas() const { return *columnas_; }

    std::size_t tamano() const { return valores_->size(); }

  private:
    std::size_t posicion(std::string_view columna) const;
    Columnas columnas_;
    std::shared_ptr<const std::vector<Valor>> valores_;
    // Los lectores piden las columnas casi siempre en su orden: la búsqueda
    // empieza por la que sigue a la última encontrada.
    mutable std::size_t siguiente_ = 0;
};

// Una fila mientras se lee, por posición y sin copiarse: vale sólo dentro de la
// llamada que la recibe. Convierte igual que Fila.
class FilaAlPaso {
  public:
    virtual ~FilaAlPaso() = default;
    virtual const std::vector<std::string>& columnas() const = 0;
    virtual Celda celda(std::size_t posicion) const = 0;

    std::string texto(std::size_t posicion) const { return textoDe(celda(posicion)); }
    // Cada motor puede leerlo sin pasar por la Celda.
    virtual void textoEn(std::size_t posicion, std::string& destino) const {
        store::textoEn(celda(posicion), destino);
    }
    std::string texto(std::string_view columna) const {
        return texto(posicionDe(columnas(), columna));
    }
    std::int64_t entero(std::size_t posicion) const { return enteroDe(celda(posicion)); }
    double real(std::size_t posicion) const { return realDe(celda(posicion)); }
};

struct Resultado {
    std::vector<std::string> columnas;
    std::vector<Fila> filas;

    bool vacio() const { return filas.empty(); }
    const Fila& primera() const { return filas.at(0); }
};

// Para los mapas por texto SQL: se buscan con el string_view que llega, sin
// copiarlo a un std::string.
struct HashTexto {
    using is_transparent = void;
    std::size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
};
template <class V>
using MapaPorTexto = std::unordered_map<std::string, V, HashTexto, std::equal_to<>>;

enum class Motor { Sqlite, Postgres };

// Muchas filas hacia una tabla, para copiar tablas enteras: cada motor las
// escribe a su manera y con memoria que no crece con la cantidad. Las filas
// traen las columnas en el orden en que se abrió la carga. Lo que no se
// terminó no cuenta: sin terminar(), la transacción que la contiene falla.
class Carga {
  public:
    virtual ~Carga() = default;
    virtual void agregar(const std::vector<Valor>& fila) = 0;
    virtual void terminar() = 0;
};

class Conexion {
  public:
    virtual ~Conexion() = default;

    virtual Motor motor() const = 0;
    // Ruta del archivo o cadena de conexión, tal como se abrió.
    virtual const std::string& destino() const = 0;

    // SELECT con parámetros "?".
    virtual Resultado consulta(std::string_view sql, const std::vector<Valor>& parametros = {}) = 0;
    // Lo mismo fila por fila, sin juntarlas ni copiarlas: para leer muchas filas
    // anchas y quedarse con otra cosa. Por omisión, sobre consulta().
    using PorFila = std::function<void(const FilaAlPaso&)>;
    virtual void recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                          const PorFila& porFila);
    // INSERT, UPDATE, DELETE o DDL; devuelve las filas afectadas.
    virtual std::int64_t ejecuta(std::string_view sql,
                                 const std::vector<Valor>& parametros = {}) = 0;

    // Por omisión, INSERT de varias filas por vez.
    virtual std::unique_ptr<Carga> cargar(const std::string& tabla,
                                          const std::vector<std::string>& columnas);

    // Transacciones anidables: sólo la más externa confirma de verdad.
    virtual void comenzar() = 0;
    virtual void confirmar() = 0;
    virtual void deshacer() = 0;
};

// Deshace al salir de su alcance si no se llamó a confirmar().
class Transaccion {
  public:
    explicit Transaccion(Conexion& c) : c_(c) { c_.comenzar(); }
    ~Transaccion() {
        if (!hecha_) {
            try {
                c_.deshacer();
            } catch (...) {
            }
        }
    }
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;
    void confirmar() {
        c_.confirmar();
        hecha_ = true;
    }

  private:
    Conexion& c_;
    bool hecha_ = false;
};

// Dentro de una transacción, espera a que ningún otro puesto tenga tomada la
// misma clave y la toma hasta el fin de la transacción: así dos puestos que
// escriben lo mismo van uno después del otro. En PostgreSQL es un bloqueo
// consultivo de la transacción; en SQLite la transacción ya empezó IMMEDIATE y
// ningún otro escribe mientras dure.
void bloquearClave(Conexion& c, std::string_view clave);

// Un texto vacío como Nulo: así se escriben las fechas y los números que
// vienen de una casilla que puede quedar vacía.
Valor textoONulo(std::string_view texto);

// Texto de un número tal como lo muestran los lectores: sin ".0" en los
// enteros, punto decimal, hasta 15 cifras significativas.
std::string textoDeNumero(double numero);

// Abre la base que nombra el destino: una ruta de archivo (SQLite) o una
// cadena de conexión PostgreSQL ("postgresql://..." o "host=... dbname=...").
// Con Apertura::Existente un archivo que no está da el error 3014 en lugar de
// crearse vacío.
enum class Apertura { CrearSiFalta, Existente };
std::unique_ptr<Conexion> abrir(const std::string& destino,
                                Apertura apertura = Apertura::CrearSiFalta);
bool esDestinoPostgres(std::string_view destino);

}  // namespace nomira::store
