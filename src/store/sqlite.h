#pragma once
// La base embebida: un archivo SQLite, compartido por los procesos de un PC. Una
// conexión se usa desde un hilo a la vez.
#include <sqlite3.h>

#include <string>
#include <unordered_map>

#include "store/conexion.h"

namespace nomira::store {

class ConexionSqlite : public Conexion {
  public:
    // Abre o crea el archivo. Espera hasta diez segundos a otro proceso que
    // tenga la base tomada antes de dar el error 3005.
    explicit ConexionSqlite(std::string ruta);
    ~ConexionSqlite() override;
    ConexionSqlite(const ConexionSqlite&) = delete;
    ConexionSqlite& operator=(const ConexionSqlite&) = delete;

    Motor motor() const override { return Motor::Sqlite; }
    const std::string& destino() const override { return ruta_; }

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
    // La sentencia lista para enlazar; enCache si queda guardada para la
    // próxima vez (las de datos) y no hay que finalizarla.
    struct Preparada {
        sqlite3_stmt* sentencia;
        bool enCache;
    };
    Preparada preparar(std::string_view sql);
    void liberar(Preparada p);
    void enlazar(sqlite3_stmt* sentencia, const std::vector<Valor>& parametros);
    // La consulta fila por fila; con `nombres`, también los de las columnas.
    void leer(std::string_view sql, const std::vector<Valor>& parametros,
              std::vector<std::string>* nombres, const PorFila& porFila);
    [[noreturn]] void fallar(int codigo) const;
    void directa(const std::string& sql);

    std::string ruta_;
    sqlite3* base_ = nullptr;
    // Las sentencias preparadas, por su texto: una liquidación repite las
    // mismas miles de veces.
    MapaPorTexto<sqlite3_stmt*> cache_;
    int profundidad_ = 0;
};

}  // namespace nomira::store
