#pragma once
// La base embebida: un archivo SQLite, compartido por los procesos de un PC. Una
// conexión se usa desde un hilo a la vez.
#include <sqlite3.h>

#include <functional>
#include <string>
#include <unordered_map>

#include "store/conexion.h"
#include "store/por_sentencia.h"

namespace nomira::store {

class ConexionSqlite : public Conexion {
  public:
    // Abre el archivo, o lo crea si `apertura` lo permite. Un archivo o una
    // carpeta sin permiso de escritura se abre sólo para leer, y entonces
    // escribir da el error 3008. Espera hasta diez segundos a otro proceso que
    // tenga la base tomada antes de dar el error 3005.
    explicit ConexionSqlite(std::string ruta, Apertura apertura = Apertura::CrearSiFalta);
    ~ConexionSqlite() override;
    ConexionSqlite(const ConexionSqlite&) = delete;
    ConexionSqlite& operator=(const ConexionSqlite&) = delete;

    Motor motor() const override { return Motor::Sqlite; }
    const std::string& destino() const override { return ruta_; }
    bool soloLectura() const { return soloLectura_; }

    Resultado consulta(std::string_view sql, const std::vector<Valor>& parametros = {}) override;
    void recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                  const PorFila& porFila) override;
    std::int64_t ejecuta(std::string_view sql, const std::vector<Valor>& parametros = {}) override;

    // La más externa es BEGIN IMMEDIATE (toma la escritura al empezar y no a
    // mitad de camino); las internas son SAVEPOINT, así deshacer una interna
    // sólo quita lo suyo.
    void comenzar() override;
    void confirmar() override;
    void deshacer() override;

  private:
    // Una sentencia guardada para la próxima vez (las de datos) con los nombres
    // de sus columnas, que se leen la primera vez y de nuevo sólo si SQLite la
    // volvió a preparar porque cambió una tabla.
    struct Guardada {
        sqlite3_stmt* sentencia = nullptr;
        Fila::Columnas columnas;
        int preparaciones = -1;  // las de SQLITE_STMTSTATUS_REPREPARE al leerlos
    };
    // La sentencia lista para enlazar; `guardada` nula si no queda guardada y
    // hay que finalizarla.
    struct Preparada {
        sqlite3_stmt* sentencia;
        Guardada* guardada;
    };
    Preparada preparar(std::string_view sql);
    void liberar(Preparada p);
    void enlazar(sqlite3_stmt* sentencia, const std::vector<Valor>& parametros);
    // La consulta fila por fila: `porFila` recibe la sentencia parada en cada
    // fila y los nombres de las columnas, que se devuelven.
    using PorPaso = std::function<void(sqlite3_stmt*, const Fila::Columnas&)>;
    Fila::Columnas leer(std::string_view sql, const std::vector<Valor>& parametros,
                        const PorPaso& porFila);
    void olvidarSentencias();
    void abrirArchivo(const std::string& nombre, int modo);
    [[noreturn]] void fallar(int codigo) const;
    [[noreturn]] void fallar(int codigo, const std::string& mensaje) const;
    void directa(const std::string& sql);

    std::string ruta_;
    sqlite3* base_ = nullptr;
    // Las sentencias preparadas, por su texto: una liquidación repite las
    // mismas miles de veces.
    PorSentencia<Guardada> cache_;
    int profundidad_ = 0;
    bool soloLectura_ = false;
};

}  // namespace nomira::store
