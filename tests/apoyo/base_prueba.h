#pragma once
// Pruebas que corren igual sobre cada motor. SQLite siempre, en un archivo
// temporal; PostgreSQL cuando NOMIRA_PG_PRUEBA trae una cadena de conexión,
// cada prueba en un esquema propio que se borra al terminar.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "store/conexion.h"

namespace nomira::store::prueba {

// Una base vacía y propia sobre un motor: un archivo SQLite (todavía sin
// crear) en una carpeta temporal, o un esquema nuevo del PostgreSQL de las
// pruebas. Se borra al destruirse.
class DestinoPrueba {
  public:
    explicit DestinoPrueba(Motor motor);
    ~DestinoPrueba();
    DestinoPrueba(const DestinoPrueba&) = delete;
    DestinoPrueba& operator=(const DestinoPrueba&) = delete;

    // Falso si es PostgreSQL y NOMIRA_PG_PRUEBA no está definida.
    bool disponible() const { return !destino_.empty(); }
    // Ruta del archivo o cadena de conexión con el esquema en search_path.
    const std::string& destino() const { return destino_; }

  private:
    std::string destino_;
    std::string carpeta_;
    std::string esquemaPg_;
};

// Omite la prueba, con un aviso visible la primera vez, si el destino no está.
#define NOMIRA_OMITIR_SI_NO_HAY(destino)                                               \
    if (!(destino).disponible()) {                                                     \
        ::nomira::store::prueba::avisarSinPostgres();                                  \
        GTEST_SKIP() << "PostgreSQL no disponible: NOMIRA_PG_PRUEBA no está definida"; \
    }
void avisarSinPostgres();

class BasePrueba : public ::testing::TestWithParam<Motor> {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Si la prueba quiere la base con las 39 tablas y la configuración.
    virtual bool conEsquema() const { return true; }

    // Otra conexión a la misma base, como la de otro proceso.
    std::unique_ptr<Conexion> otra() const { return abrir(destino_); }

    Conexion& c() { return *conexion_; }
    bool esPostgres() const { return GetParam() == Motor::Postgres; }

    std::string destino_;
    std::unique_ptr<Conexion> conexion_;

  private:
    std::unique_ptr<DestinoPrueba> base_;
};

class BaseVacia : public BasePrueba {
  protected:
    bool conEsquema() const override { return false; }
};

std::string nombreMotor(const ::testing::TestParamInfo<Motor>& info);

}  // namespace nomira::store::prueba

#define NOMIRA_PARA_CADA_MOTOR(Clase)                                                        \
    INSTANTIATE_TEST_SUITE_P(                                                                \
        Motores, Clase,                                                                      \
        ::testing::Values(::nomira::store::Motor::Sqlite, ::nomira::store::Motor::Postgres), \
        ::nomira::store::prueba::nombreMotor)
