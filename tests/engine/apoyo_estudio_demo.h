#pragma once
// El estudio de demostración sobre una base nueva de cada motor, con hoy el
// 15/11/2026: se liquida octubre.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "engine/mes/horas.h"
#include "master/datos_iniciales.h"
#include "master/estudio_demo.h"

namespace nomira::pruebas {

class BaseEstudioDemo : public store::prueba::BasePrueba {
  protected:
    static inline const std::filesystem::path kDatos =
        std::filesystem::path(__FILE__).parent_path() / "../../data";
    static constexpr common::Mes kMes{2026, 10};

    void SetUp() override {
        BasePrueba::SetUp();
        if (IsSkipped()) return;
        master::cargarDatosIniciales(c(), kDatos, common::Fecha{2026, 11, 15});
        master::crearEstudioDemo(c());
    }

    // Los archivos de horas del reloj del mes en una carpeta de la prueba, con
    // horas.txt apuntando ahí. Devuelve los escritos.
    std::vector<std::filesystem::path> horasDelReloj() {
        const std::string prefijo = (tmp.ruta() / "reloj" / "HORAS").string();
        std::filesystem::create_directories(tmp.ruta() / "Software" / "Nomira");
        std::ofstream(tmp.ruta() / "Software" / "Nomira" / "horas.txt") << prefijo << '\n';
        return master::escribirHorasDemo([&](const std::string& nroemp) {
            return engine::rutaArchivoHoras(prefijo, kMes, nroemp);
        });
    }

    CarpetaTemporal tmp{"15/11/2026"};
    DialogoGuion dialogo;
};

}  // namespace nomira::pruebas
