// Form42: las generaciones de haberes y descuentos permanentes de la persona,
// sus borrados, y las de toda la empresa con su avance.
#include "common/fallo.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/haberes.h"
#include "screens/haberes/pantalla_haberes.h"
#include "screens/haberes/textos_haberes.h"

namespace nomira::pantallas {

namespace {

// Mientras corre toda la empresa sólo queda a mano el botón de detenerla.
class Bloqueo {
  public:
    Bloqueo(QWidget* pantalla, QWidget* libre) {
        for (auto* w : pantalla->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (w != libre && w->isEnabled()) {
                w->setEnabled(false);
                bloqueados_.push_back(w);
            }
    }
    ~Bloqueo() {
        for (auto* w : bloqueados_) w->setEnabled(true);
    }

  private:
    std::vector<QWidget*> bloqueados_;
};

}  // namespace

bool PantallaHaberes::hayMesDePersona() {
    if (empresa().empty() || nombre().empty() || mes_->text().trimmed().isEmpty()) {
        advertir(engine::kFaltanCamposMes);
        return false;
    }
    if (!common::Mes::desdeTexto(mes_->text().trimmed().toStdString())) {
        advertir(kFormatoMes);
        return false;
    }
    return true;
}

// Después de escribir: el mes se vuelve a leer entero.
void PantallaHaberes::releer() {
    limpiarRenglon();
    if (BuscarVerif()) Consultar_Click();
    codigo_->setFocus();
}

void PantallaHaberes::HabPerm_Click() {
    intentar("HabPerm_Click", [this] {
        if (!hayMesDePersona()) return;
        engine::generarHaberesPermanentes(base(), empresa(), nombre(), *mes(), dialogo(),
                                          engine::conArchivoDeHoras());
        irpf_->limpiar();
        releer();
    });
}

void PantallaHaberes::DescPerm_Click() {
    intentar("DescPerm_Click", [this] {
        if (!hayMesDePersona()) return;
        const auto r = engine::DescPerm(base(), empresa(), nombre(), *mes(), dialogo());
        releer();
        for (const auto& f : r.filas)
            if (f.irpfMes || f.irpfDiciembre) {
                engine::ImporteImpuesto imp;
                imp.irpfMes = f.irpfMes;
                imp.irpfDiciembre = f.irpfDiciembre;
                mostrarIRPF(imp);
            }
    });
}

void PantallaHaberes::HabPerm2_Click() {
    intentar("HabPerm2_Click", [this] {
        if (!hayMesDePersona()) return;
        if (engine::eliminarHaberesDelMes(base(), empresa(), nombre(), *mes(), dialogo()) < 0)
            return;
        releer();
    });
}

void PantallaHaberes::DescPerm2_Click() {
    intentar("DescPerm2_Click", [this] {
        if (!hayMesDePersona()) return;
        if (engine::eliminarDescuentosDelMes(base(), empresa(), nombre(), *mes(), dialogo()) < 0)
            return;
        irpf_->limpiar();
        releer();
    });
}

std::optional<engine::ResultadoEmpresa> PantallaHaberes::correrEmpresa(
    const CorridaEmpresa& correr) {
    // El mes es siempre el anterior: los campos del mes y de la persona van vacíos.
    if (empresa().empty() || !mes_->text().trimmed().isEmpty() || !nombre().empty()) {
        advertir(engine::kSoloEmpresa);
        return std::nullopt;
    }
    engine::ResultadoEmpresa r;
    {
        Bloqueo bloqueo(this, avance_);
        avance_->empezar();
        r = correr(*common::Mes::desdeTexto(mesanterior_));
        avance_->terminar();
    }
    // Lo de las personas anteriores quedó; el cuadro de error dice dónde se cortó.
    if (r.fallo) std::rethrow_exception(r.fallo);
    return r;
}

void PantallaHaberes::ActHamPermxEmpresa_Click() {
    intentar("ActHamPermxEmpresa_Click", [this] {
        const auto r = correrEmpresa([this](const common::Mes& m) {
            return engine::ActHamPermxEmpresa(base(), empresa(), m, dialogo(),
                                              engine::conArchivoDeHoras(), avance_->progreso(),
                                              avance_->cancelar());
        });
        if (r && !r->cancelado) informar(engine::kActualizacionFinalizada);
    });
}

void PantallaHaberes::ActDesPermxEmpresa_Click() {
    intentar("ActDesPermxEmpresa_Click", [this] {
        // Al terminar sin detenerse el motor avisa "Actualización finalizada.".
        correrEmpresa([&](const common::Mes& m) {
            return engine::ActDesPermxEmpresa(base(), empresa(), m, dialogo(),
                                              avance_->progreso(), avance_->cancelar());
        });
    });
}

}  // namespace nomira::pantallas
