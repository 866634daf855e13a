#pragma once
// La base en un servidor PostgreSQL, para varios PC. La contraseña nunca va en
// base.txt: libpq la toma de PGPASSWORD, de ~/.pgpass o del archivo que diga
// PGPASSFILE.
#include <libpq-fe.h>

#include <string>
#include <unordered_map>

#include "store/conexion.h"

namespace nomira::store {

class ConexionPostgres : public Conexion {
  public:
    // Conecta y fija DateStyle ISO y UTF8, así las fechas viajan "aaaa-mm-dd".
    explicit ConexionPostgres(std::string cadena);
    ~ConexionPostgres() override;
    ConexionPostgres(const ConexionPostgres&) = delete;
    ConexionPostgres& operator=(const ConexionPostgres&) = delete;

    Motor motor() const override { return Motor::Postgres; }
    const std::string& destino() const override { return cadena_; }

    // Los "?" se vuelven $1..$n. Las sentencias de datos se preparan una vez
    // por texto y luego se ejecutan con un solo viaje al servidor. Los
    // parámetros van como texto y el servidor los convierte al tipo de la
    // columna, por eso un entero o una fecha pueden llegar como string.
    Resultado consulta(std::string_view sql, const std::vector<Valor>& parametros = {}) override;
    // Con un cursor, de a mil filas: la memoria no crece con la consulta, y
    // dentro de `porFila` la conexión se puede seguir usando.
    void recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                  const PorFila& porFila) override;
    std::int64_t ejecuta(std::string_view sql, const std::vector<Valor>& parametros = {}) override;
    // COPY FROM STDIN: mientras la carga esté abierta la conexión no sirve
    // para otra cosa.
    std::unique_ptr<Carga> cargar(const std::string& tabla,
                                  const std::vector<std::string>& columnas) override;

    // BEGIN afuera, SAVEPOINT adentro. Ojo: en PostgreSQL una sentencia que
    // falla invalida la transacción hasta deshacer ese nivel. Si la conexión se
    // corta con transacciones abiertas, cada confirmar() de esos niveles da el
    // error de conexión y cada deshacer() sólo los cierra; recién entonces la
    // conexión se rehace.
    void comenzar() override;
    void confirmar() override;
    void deshacer() override;

    // Número del proceso servidor de esta conexión (para pruebas y soporte).
    int procesoServidor() const;

  private:
    friend class CargaPostgres;

    struct Preparada {
        std::string nombre;
    };

    PGresult* ejecutarPreparada(const std::string& texto, const std::string& numerado,
                                const std::vector<const char*>& parametros);
    PGresult* correr(std::string_view sql, const std::vector<Valor>& parametros);
    void directa(const std::string& sql);
    void asegurarConexion();
    void prepararSesion();
    // Si el resultado dice que la conexión murió, lanza el error de conexión.
    void revisarConexion(const PGresult* resultado);
    [[noreturn]] void perderConexion(const std::string& detalle);
    [[noreturn]] void fallar(PGresult* resultado);

    std::string cadena_;
    PGconn* conexion_ = nullptr;
    std::unordered_map<std::string, Preparada> cache_;
    int siguiente_ = 0;
    int profundidad_ = 0;
    // Niveles de transacción que se llevó la conexión perdida y que el que los
    // abrió todavía no cerró.
    int perdidas_ = 0;
    // El servidor avisó que cierra la conexión aunque libpq todavía no lo note.
    bool rota_ = false;
};

// El mensaje de una conexión perdida, igual venga de donde venga.
inline constexpr const char* kConexionPerdida =
    "Se perdió la conexión con el servidor de la base de datos: ";

// El texto con que viaja un parámetro: el servidor lo convierte al tipo de la columna.
std::string textoParaPostgres(const Valor& v);

// "?" fuera de literales y de identificadores entre comillas pasa a $1, $2...
std::string numerarParametros(std::string_view sql, int* cantidad = nullptr);

}  // namespace nomira::store
