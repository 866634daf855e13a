#pragma once
// Form42 "Haberes y Descuentos": el mes de una persona. La empresa, el mes y la
// persona; la fila en mano (código, concepto, unidad, cantidad, total); las dos
// grillas con las cifras del mes; las generaciones de haberes y descuentos de
// la persona o de toda la empresa. Todo cálculo es del motor.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "engine/mes/descuentos.h"
#include "engine/mes/empresa_mes.h"
#include "engine/mes/mes_persona.h"
#include "engine/mes/renglon.h"
#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "master/variables.h"
#include "screens/haberes/avance_empresa.h"
#include "screens/haberes/cuadro_irpf.h"

namespace nomira::pantallas {

class PantallaHaberes : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaHaberes(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Para la captura: deja abierto el mes de una persona que tenga filas.
    Q_INVOKABLE void prepararCaptura();

  private:
    void armar();
    QLayout* armarCabecera();
    QLayout* armarRenglon();
    QLayout* armarCifras();
    QLayout* armarGeneraciones();

    // La empresa, el mes y la persona.
    std::string empresa() const;
    std::string nombre() const;
    std::optional<common::Mes> mes() const;
    void CargarNombredelPersonal();
    bool mesEnter();
    void elegirPersona();
    bool nrofunEnter();
    void moverPersona(int paso);
    bool BuscarVerif();
    void Consultar_Click();
    void Refrescar();
    void mostrarObservaciones();
    void olvidarMes();

    // La fila en mano.
    bool Buscar_Click();
    bool Descripcion_Click();
    bool cantEnter();
    bool totalEnter();
    void Agregar_Click();
    void Modificar_Click();
    void Eliminar_Click();
    void guardar(const char* procedimiento);
    void limpiarRenglon();
    void mostrarIRPF(const engine::ImporteImpuesto& imp);
    void ComoSeCalculo();

    // Las generaciones.
    bool hayMesDePersona();
    void releer();
    void HabPerm_Click();
    void HabPerm2_Click();
    void DescPerm_Click();
    void DescPerm2_Click();
    using CorridaEmpresa = std::function<engine::ResultadoEmpresa(const common::Mes&)>;
    std::optional<engine::ResultadoEmpresa> correrEmpresa(const CorridaEmpresa& correr);
    void ActHamPermxEmpresa_Click();
    void ActDesPermxEmpresa_Click();

    QComboBox *empresa_ = nullptr, *nombre_ = nullptr;
    ventana::CampoFecha* mes_ = nullptr;
    QLineEdit *nrofun_ = nullptr, *codigo_ = nullptr, *concepto_ = nullptr, *unidad_ = nullptr,
              *cant_ = nullptr, *total_ = nullptr;
    ventana::Grilla *haberes_ = nullptr, *descuentos_ = nullptr;
    ventana::Grilla* ultimaGrilla_ = nullptr;
    std::map<std::string, QLineEdit*> cifras_;
    CuadroIRPF* irpf_ = nullptr;
    AvanceEmpresa* avance_ = nullptr;

    std::string mesanterior_;
    // El mes leído por BuscarVerif y su contexto de fórmulas.
    engine::ContextoFormula ctx_;
    std::optional<engine::MesPersona> mp_;
    std::optional<engine::RenglonBuscado> buscado_;
    std::optional<engine::CalculoRenglon> calculo_;
};

void registrarPantallasHaberes();

}  // namespace nomira::pantallas
