#include "screens/haberes/panel_generaciones.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <tuple>

#include "engine/mes/descuentos.h"
#include "engine/mes/haberes.h"

namespace nomira::pantallas {

PanelGeneraciones::PanelGeneraciones(ventana::Pantalla& pantalla, CabeceraMes& cabecera)
    : pantalla_(pantalla), cabecera_(cabecera) {
    auto* marco = new QGroupBox("Haberes y descuentos permanentes");
    auto* botones = new QGridLayout(marco);
    const std::tuple<const char*, const char*, void (PanelGeneraciones::*)()> kBotones[] = {
        {"haberesDelMes", "&Hab. Perm.", &PanelGeneraciones::HabPerm_Click},
        {"HabPerm2", "E&lim. Hab. Perm.", &PanelGeneraciones::HabPerm2_Click},
        {"descuentosDeUnaPersona", "&Desc. Perm.", &PanelGeneraciones::DescPerm_Click},
        {"DescPerm2", "Eli&m. Desc. Perm.", &PanelGeneraciones::DescPerm2_Click},
        {"ActHabPermxEmpresa", "Act. Hab. Perm. x &Empresa",
         &PanelGeneraciones::ActHamPermxEmpresa_Click},
        {"descuentosDeLaEmpresa", "Act. Des. Perm. x Empre&sa",
         &PanelGeneraciones::ActDesPermxEmpresa_Click},
        {"ComoSeCalculo", "¿&Cómo se calculó?", &PanelGeneraciones::comoSeCalculo},
    };
    int i = 0;
    for (const auto& [nombre, texto, accion] : kBotones) {
        auto* b = new QPushButton(texto);
        b->setObjectName(nombre);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, [this, accion = accion] { (this->*accion)(); });
        botones->addWidget(b, i / 4, i % 4);
        ++i;
    }
    // Fuera del marco: sigue habilitado mientras corre toda la empresa.
    avance_ = new AvanceEmpresa;
    auto* capa = new QVBoxLayout(this);
    capa->setContentsMargins(0, 0, 0, 0);
    capa->addWidget(marco);
    capa->addWidget(avance_);
    capa->addStretch();
}

void PanelGeneraciones::HabPerm_Click() {
    pantalla_.intentar("HabPerm_Click", [this] {
        if (!cabecera_.completa()) return;
        engine::generarHaberesPermanentes(pantalla_.base(), cabecera_.empresa(), cabecera_.nombre(),
                                          *cabecera_.mes(), pantalla_.dialogo(),
                                          engine::conArchivoDeHoras());
        emit irpfOlvidado();
        emit mesCambiado();
    });
}

void PanelGeneraciones::DescPerm_Click() {
    pantalla_.intentar("DescPerm_Click", [this] {
        if (!cabecera_.completa()) return;
        const auto r = engine::descuentosDeUnaPersona(pantalla_.base(), cabecera_.empresa(),
                                                      cabecera_.nombre(), *cabecera_.mes(),
                                                      pantalla_.dialogo());
        emit mesCambiado();
        for (const auto& f : r.filas)
            if (f.irpfMes || f.irpfDiciembre) {
                engine::ImporteImpuesto imp;
                imp.irpfMes = f.irpfMes;
                imp.irpfDiciembre = f.irpfDiciembre;
                emit impuesto(imp);
            }
    });
}

void PanelGeneraciones::HabPerm2_Click() {
    pantalla_.intentar("HabPerm2_Click", [this] {
        if (!cabecera_.completa()) return;
        if (engine::eliminarHaberesDelMes(pantalla_.base(), cabecera_.empresa(), cabecera_.nombre(),
                                          *cabecera_.mes(), pantalla_.dialogo()) < 0)
            return;
        emit mesCambiado();
    });
}

void PanelGeneraciones::DescPerm2_Click() {
    pantalla_.intentar("DescPerm2_Click", [this] {
        if (!cabecera_.completa()) return;
        if (engine::eliminarDescuentosDelMes(pantalla_.base(), cabecera_.empresa(),
                                             cabecera_.nombre(), *cabecera_.mes(),
                                             pantalla_.dialogo()) < 0)
            return;
        emit irpfOlvidado();
        emit mesCambiado();
    });
}

std::optional<engine::ResultadoEmpresa> PanelGeneraciones::correrEmpresa(
    const CorridaEmpresa& correr) {
    // El mes es siempre el anterior: los campos del mes y de la persona van vacíos.
    if (cabecera_.empresa().empty() || !cabecera_.mesVacio() || !cabecera_.nombre().empty()) {
        pantalla_.advertir(engine::kSoloEmpresa);
        return std::nullopt;
    }
    const auto mes = *common::Mes::desdeTexto(cabecera_.mesAnterior());
    const auto r = avance_->correr(&pantalla_, [&] { return correr(mes); });
    emit empresaCorrida();
    // Lo de las personas anteriores quedó; el cuadro de error dice dónde se cortó.
    if (r.fallo) std::rethrow_exception(r.fallo);
    return r;
}

void PanelGeneraciones::ActHamPermxEmpresa_Click() {
    pantalla_.intentar("ActHamPermxEmpresa_Click", [this] {
        const auto r = correrEmpresa([this](const common::Mes& m) {
            return engine::haberesDeLaEmpresa(pantalla_.base(), cabecera_.empresa(), m,
                                              pantalla_.dialogo(), engine::conArchivoDeHoras(),
                                              avance_->progreso(), avance_->cancelar());
        });
        if (r && !r->cancelado) pantalla_.informar(engine::textoActualizacionFinalizada(*r));
    });
}

void PanelGeneraciones::ActDesPermxEmpresa_Click() {
    pantalla_.intentar("ActDesPermxEmpresa_Click", [this] {
        // Al terminar sin detenerse el motor avisa "Actualización finalizada.".
        correrEmpresa([&](const common::Mes& m) {
            return engine::descuentosDeLaEmpresa(pantalla_.base(), cabecera_.empresa(), m,
                                                 pantalla_.dialogo(), avance_->progreso(),
                                                 avance_->cancelar());
        });
    });
}

}  // namespace nomira::pantallas
