// Form42: la empresa, el mes y la persona; las grillas y las cifras del mes.
#include <QHeaderView>

#include "common/formato.h"
#include "common/numeros.h"
#include "engine/mes/mes_en_pantalla.h"
#include "master/empresas.h"
#include "screens/haberes/pantalla_haberes.h"
#include "screens/haberes/textos_haberes.h"

namespace nomira::pantallas {

namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

std::string pesos(common::Dinero d) {
    return common::formatear(d.aDouble(), "##,##0.00");
}

void desplegar(ventana::Grilla* grilla, const std::vector<engine::FilaGuardada>& filas,
               const char* tipo) {
    std::vector<std::vector<std::string>> celdas;
    for (const auto& f : filas)
        if (f.tipo == tipo)
            celdas.push_back({std::to_string(f.codigo), f.concepto, f.unidad,
                              common::numeroATexto(f.cant), pesos(f.total)});
    grilla->mostrar({"Código", "Concepto", "Unid.", "Cant.", "Total"}, celdas, {0, 3, 4});
    grilla->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

}  // namespace

std::string PantallaHaberes::empresa() const {
    return empresa_->currentText().trimmed().toStdString();
}

std::string PantallaHaberes::nombre() const {
    return nombre_->currentText().trimmed().toStdString();
}

// El mes tecleado; vacío, el anterior al de hoy.
std::optional<common::Mes> PantallaHaberes::mes() const {
    const auto t = mes_->text().trimmed().toStdString();
    return common::Mes::desdeTexto(t.empty() ? mesanterior_ : t);
}

void PantallaHaberes::CargarNombredelPersonal() {
    intentar("CargarNombredelPersonal", [this] {
        const auto escrito = nombre_->currentText();
        const QSignalBlocker quieto(nombre_);
        nombre_->clear();
        nombre_->addItem("");
        const auto m = mes();
        if (!empresa().empty() && m)
            for (const auto& n : engine::nombresDelMes(base(), empresa(), *m))
                nombre_->addItem(q(n));
        // La persona queda si sigue en la lista del mes.
        if (nombre_->findText(escrito) > 0) {
            nombre_->setCurrentText(escrito);
        } else {
            nombre_->setCurrentText("");
            nrofun_->clear();
            olvidarMes();
        }
    });
}

void PantallaHaberes::olvidarMes() {
    mp_.reset();
    limpiarRenglon();
    irpf_->limpiar();
    desplegar(haberes_, {}, "Hab");
    desplegar(descuentos_, {}, "Des");
    for (auto& [nombre, c] : cifras_) c->clear();
}

bool PantallaHaberes::mesEnter() {
    bool sigue = false;
    intentar("Text1_KeyPress", [&] {
        const auto texto = mes_->text().trimmed().toStdString();
        const auto m = common::Mes::desdeTexto(texto);
        if (!mes_->formatoValido(false) || !m) return advertir(kFormatoMes);
        if (texto != mesanterior_ && !confirmar(tituloMesLiquidado(*m))) {
            mes_->clear();
            return;
        }
        irpf_->limpiar();
        CargarNombredelPersonal();
        if (!nombre().empty() && BuscarVerif()) Consultar_Click();
        sigue = true;
    });
    return sigue;
}

void PantallaHaberes::elegirPersona() {
    intentar("Combo2_Click", [this] {
        olvidarMes();
        if (mes_->text().trimmed().isEmpty()) mes_->setText(q(mesanterior_));
        if (!BuscarVerif()) return;
        nrofun_->setText(q(mp_->persona->nrofun));
        Consultar_Click();
        mostrarObservaciones();
    });
}

bool PantallaHaberes::nrofunEnter() {
    intentar("Text12_KeyPress", [this] {
        const auto numero = nrofun_->text().trimmed().toStdString();
        if (empresa().empty() || numero.empty()) return advertir(kFaltaNroFun);
        const auto p = engine::personaPorNrofun(base(), empresa(), numero);
        nombre_->setCurrentText(q(p ? p->nombre : kNoExiste));
        elegirPersona();
        codigo_->setFocus();
    });
    return false;
}

void PantallaHaberes::moverPersona(int paso) {
    intentar(paso < 0 ? "Ant_Click" : "Prox_Click", [&] {
        const auto m = mes();
        if (empresa().empty() || !m) return;
        const auto p = engine::personaVecina(base(), empresa(),
                                             nrofun_->text().trimmed().toStdString(), *m, paso);
        if (!p) return;
        nombre_->setCurrentText(q(p->nombre));
        nrofun_->setText(q(p->nrofun));
        elegirPersona();
    });
}

bool PantallaHaberes::BuscarVerif() {
    const auto m = mes();
    mp_.reset();
    if (empresa().empty() || nombre().empty() || !m) return false;
    // Cada lectura trae las filas, las variables y los conceptos como están
    // ahora: otra PC pudo cambiarlos.
    ctx_ = {};
    mp_ = engine::BuscarVerif(base(), empresa(), nombre(), *m, ctx_, dialogo());
    return mp_.has_value();
}

void PantallaHaberes::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        if (!mp_ || !BuscarVerif()) return;
        const auto filas = engine::filasParaGrillas(base(), mp_->empresa, mp_->nombre, mp_->mes);
        desplegar(haberes_, filas, "Hab");
        desplegar(descuentos_, filas, "Des");
        const auto c = engine::cifrasDelMes(mp_->desglose, filas);
        for (auto [nombre, importe] : {std::pair{"totalhab", c.totalhab},
                                       {"totaldes", c.totaldes},
                                       {"liquidoneto", c.liquidoneto},
                                       {"liquidoacobrar", c.aCobrar},
                                       {"montoirpf", c.montoirpf},
                                       {"montodedu", c.montodedu}})
            cifras_.at(nombre)->setText(q(pesos(importe)));
    });
}

void PantallaHaberes::Refrescar() {
    intentar("Form_KeyDown", [this] {
        if (BuscarVerif()) Consultar_Click();
        codigo_->setFocus();
    });
}

void PantallaHaberes::mostrarObservaciones() {
    if (!mp_) return;
    if (const auto texto =
            observacionDelMes(mp_->persona->observaciones, mes_->text().toStdString()))
        informar(*texto);
}

void PantallaHaberes::prepararCaptura() {
    intentar("Form_Load", [this] {
        for (const auto& e : master::nombresDeEmpresas(base())) {
            auto m = common::Mes::desdeTexto(mesanterior_);
            // El mes más reciente, del último año, que tenga filas de alguien.
            for (int atras = 0; atras < 12 && m; ++atras, m = m->anterior())
                for (const auto& n : engine::nombresDelMes(base(), e, *m)) {
                    if (engine::filasParaGrillas(base(), e, n, *m).empty()) continue;
                    empresa_->setCurrentText(q(e));
                    mes_->setText(q(m->texto()));
                    CargarNombredelPersonal();
                    nombre_->setCurrentText(q(n));
                    if (BuscarVerif()) {
                        nrofun_->setText(q(mp_->persona->nrofun));
                        Consultar_Click();
                    }
                    return;
                }
        }
    });
}

}  // namespace nomira::pantallas
