#pragma once
// La cabecera de Form42: la empresa, el mes (FMesCargo), la persona y su número
// de funcionario, con la anterior y la siguiente persona activa. Elegir la persona
// abre su mes; la pantalla muestra entonces sus filas.
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "engine/mes/descuentos.h"
#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/mes_abierto.h"

namespace nomira::pantallas {

class CabeceraMes : public QWidget {
    Q_OBJECT
  public:
    // El rótulo del mes es el de cada pantalla; la reliquidación por
    // retroactividad se abre sólo desde la del mes.
    CabeceraMes(ventana::Pantalla& pantalla, MesAbierto& mes, const char* rotuloMes = "&FMesCargo",
                bool conReliquidacion = true);

    std::string empresa() const;
    std::string nombre() const;
    // El mes tecleado; vacío, el anterior al de hoy.
    std::optional<common::Mes> mes() const;
    bool mesVacio() const;
    const std::string& mesAnterior() const { return mesanterior_; }
    // Empresa, persona y mes completos y bien escritos; si no, avisa (con el
    // mensaje de la pantalla si faltan campos).
    bool completa(const char* faltanCampos = engine::kFaltanCamposMes);
    // Las filas de esa tabla de la persona y el mes en pantalla, con sus
    // explicaciones; nada si falta la empresa, la persona o el mes.
    std::optional<std::vector<engine::FilaMes>> filasDe(engine::TablaLiquidacion tabla);
    // Abre de nuevo el mes de la persona en pantalla (después de escribir).
    bool releer();
    void cargarEmpresas();
    // Como empieza toda pantalla de liquidación: el orden de Tab de sus campos
    // (y después `siguiente`, si la pantalla tiene fila en mano), las empresas
    // cargadas y el foco en la empresa.
    void empezar(QWidget* siguiente = nullptr);

    QComboBox* campoEmpresa() const { return empresa_; }
    QWidget* campoMes() const { return mes_; }
    QComboBox* campoNombre() const { return nombre_; }
    QLineEdit* campoNrofun() const { return nrofun_; }

    // Para la captura: el mes más reciente del último año con filas de alguien
    // (las del mes; otra pantalla dice cuáles son las suyas).
    using TieneFilas = std::function<bool(const std::string& empresa, const std::string& nombre,
                                          const common::Mes& mes)>;
    void elegirUnMesConFilas(const TieneFilas& tieneFilas = {});

  signals:
    // El mes que se mostraba ya no vale (otra empresa, otro mes, otra persona).
    void mesOlvidado();
    // Se tecleó otro mes: el recuadro del IRPF era del anterior.
    void mesTecleado();
    // Se abrió el mes de la persona elegida.
    void mesAbierto();
    // Enter en la persona o en el Nro Fun.: sigue la fila en mano.
    void pasarALaFila();

  private:
    void CargarNombredelPersonal();
    bool mesEnter();
    void elegirPersona();
    bool nrofunEnter();
    void moverPersona(int paso);
    void mostrarObservaciones();

    ventana::Pantalla& pantalla_;
    MesAbierto& abierto_;
    std::string mesanterior_;
    QComboBox *empresa_ = nullptr, *nombre_ = nullptr;
    ventana::CampoFecha* mes_ = nullptr;
    QLineEdit* nrofun_ = nullptr;
};

}  // namespace nomira::pantallas
