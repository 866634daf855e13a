#include "screens/haberes/cabecera_mes.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "common/reloj.h"
#include "engine/mes/lectura.h"
#include "engine/mes/mes_en_pantalla.h"
#include "frame/ventana/texto_qt.h"
#include "master/empresas.h"
#include "screens/haberes/textos_haberes.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

namespace {

QComboBox* combo(const char* nombre) {
    auto* c = new QComboBox;
    c->setObjectName(nombre);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->setMinimumContentsLength(28);
    return c;
}

QPushButton* botonSuelto(const char* nombre, const QString& texto) {
    auto* b = new QPushButton(texto);
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

CabeceraMes::CabeceraMes(ventana::Pantalla& pantalla, MesAbierto& mes, const char* rotuloMes,
                         bool conReliquidacion)
    : pantalla_(pantalla), abierto_(mes), mesanterior_(common::CalculaMesAnterior(common::hoy())) {
    empresa_ = combo("empresa");
    nombre_ = combo("nombre");
    mes_ = new ventana::CampoFecha(nullptr, ventana::FormaFecha::Mes);
    mes_->setObjectName("mes");
    nrofun_ = new QLineEdit;
    nrofun_->setObjectName("nrofun");
    nrofun_->setMaximumWidth(nrofun_->fontMetrics().horizontalAdvance("000000") + 14);
    auto* ant = botonSuelto("Ant", "< &Ant");
    auto* prox = botonSuelto("Prox", "&Prox >");

    connect(empresa_, &QComboBox::currentTextChanged, this, [this] {
        emit mesOlvidado();
        CargarNombredelPersonal();
    });
    connect(nombre_, &QComboBox::activated, this, [this] { elegirPersona(); });
    // Vaciar la persona (para correr toda la empresa) la saca también de Nro Fun.
    connect(nombre_, &QComboBox::editTextChanged, this, [this](const QString& texto) {
        if (!texto.trimmed().isEmpty() || nrofun_->text().isEmpty()) return;
        nrofun_->clear();
        emit mesOlvidado();
    });
    pantalla_.alPulsarEnter(nombre_, [this] {
        // Un nombre tecleado en otras mayúsculas es la persona de la lista que el
        // completador propone: se elige ésa, no se avisa que no existe.
        if (const int i = nombre_->findText(nombre_->currentText(), Qt::MatchFixedString); i > 0)
            nombre_->setCurrentIndex(i);
        elegirPersona();
        emit pasarALaFila();
        return false;
    });
    pantalla_.alPulsarEnter(mes_, [this] { return mesEnter(); });
    pantalla_.alPulsarEnter(nrofun_, [this] { return nrofunEnter(); });
    connect(ant, &QPushButton::clicked, this, [this] { moverPersona(-1); });
    connect(prox, &QPushButton::clicked, this, [this] { moverPersona(+1); });

    auto* capa = new QGridLayout(this);
    capa->setContentsMargins(0, 0, 0, 0);
    auto rotulo = [](const char* texto, QWidget* campo) {
        auto* l = new QLabel(texto);
        l->setBuddy(campo);
        return l;
    };
    capa->addWidget(rotulo("Empresa", empresa_), 0, 0);
    capa->addWidget(empresa_, 0, 1);
    capa->addWidget(rotulo(rotuloMes, mes_), 0, 2, Qt::AlignRight);
    capa->addWidget(mes_, 0, 3);
    if (conReliquidacion) {
        auto* reliq = botonSuelto("Reliq", "Reliq por retro.");
        reliq->setEnabled(false);  // su pantalla todavía no está
        reliq->setToolTip("Todavía no disponible");
        capa->addWidget(reliq, 0, 5);
    }
    capa->addWidget(rotulo("&Nombre del Personal", nombre_), 1, 0);
    capa->addWidget(nombre_, 1, 1);
    capa->addWidget(rotulo("Nro Fun.", nrofun_), 1, 2, Qt::AlignRight);
    capa->addWidget(nrofun_, 1, 3);
    auto* mover = new QHBoxLayout;
    mover->addWidget(ant);
    mover->addWidget(prox);
    capa->addLayout(mover, 1, 5);
    capa->setColumnStretch(1, 1);
    capa->setColumnStretch(4, 1);
}

void CabeceraMes::empezar(QWidget* siguiente) {
    setTabOrder(empresa_, mes_);
    setTabOrder(mes_, nombre_);
    setTabOrder(nombre_, nrofun_);
    if (siguiente) setTabOrder(nrofun_, siguiente);
    pantalla_.intentar("Form_Load", [this] { cargarEmpresas(); });
    empresa_->setFocus();
}

void CabeceraMes::cargarEmpresas() {
    empresa_->addItem("");
    for (const auto& e : master::nombresDeEmpresas(pantalla_.base())) empresa_->addItem(aQt(e));
    empresa_->setCurrentText("");
}

std::string CabeceraMes::empresa() const {
    return deQt(empresa_);
}

std::string CabeceraMes::nombre() const {
    return deQt(nombre_);
}

bool CabeceraMes::mesVacio() const {
    return mes_->text().trimmed().isEmpty();
}

std::optional<common::Mes> CabeceraMes::mes() const {
    const auto t = deQt(mes_);
    return common::Mes::desdeTexto(t.empty() ? mesanterior_ : t);
}

bool CabeceraMes::completa(const char* faltanCampos) {
    if (empresa().empty() || nombre().empty() || mesVacio()) {
        pantalla_.advertir(faltanCampos);
        return false;
    }
    if (!common::Mes::desdeTexto(deQt(mes_))) {
        pantalla_.advertir(kFormatoMes);
        return false;
    }
    return true;
}

std::optional<std::vector<engine::FilaMes>> CabeceraMes::filasDe(engine::TablaLiquidacion tabla) {
    const auto m = mes();
    if (empresa().empty() || nombre().empty() || !m) return std::nullopt;
    return engine::filasDeLaPersona(pantalla_.base(), empresa(), nombre(), *m, tabla);
}

bool CabeceraMes::releer() {
    const auto m = mes();
    if (!m) {
        abierto_.cerrar();
        return false;
    }
    return abierto_.abrir(empresa(), nombre(), *m);
}

void CabeceraMes::CargarNombredelPersonal() {
    pantalla_.intentar("CargarNombredelPersonal", [this] {
        const auto escrito = nombre_->currentText();
        const QSignalBlocker quieto(nombre_);
        nombre_->clear();
        nombre_->addItem("");
        const auto m = mes();
        if (!empresa().empty() && m)
            for (const auto& n : engine::nombresDelMes(pantalla_.base(), empresa(), *m))
                nombre_->addItem(aQt(n));
        // La persona queda si sigue en la lista del mes.
        if (nombre_->findText(escrito) > 0) {
            nombre_->setCurrentText(escrito);
        } else {
            nombre_->setCurrentText("");
            nrofun_->clear();
            emit mesOlvidado();
        }
    });
}

bool CabeceraMes::mesEnter() {
    bool sigue = false;
    pantalla_.intentar("Text1_KeyPress", [&] {
        const auto texto = deQt(mes_);
        const auto m = common::Mes::desdeTexto(texto);
        if (!mes_->formatoValido(false) || !m) return pantalla_.advertir(kFormatoMes);
        if (texto != mesanterior_ && !pantalla_.confirmar(tituloMesLiquidado(*m))) {
            mes_->clear();
            return;
        }
        emit mesTecleado();
        CargarNombredelPersonal();
        if (!nombre().empty() && releer()) emit mesAbierto();
        sigue = true;
    });
    return sigue;
}

void CabeceraMes::elegirPersona() {
    pantalla_.intentar("Combo2_Click", [this] {
        emit mesOlvidado();
        if (mesVacio()) mes_->setText(aQt(mesanterior_));
        if (!releer()) return;
        nrofun_->setText(aQt(abierto_.mes().persona->nrofun));
        emit mesAbierto();
        mostrarObservaciones();
    });
}

bool CabeceraMes::nrofunEnter() {
    pantalla_.intentar("Text12_KeyPress", [this] {
        const auto numero = deQt(nrofun_);
        if (empresa().empty() || numero.empty()) return pantalla_.advertir(kFaltaNroFun);
        const auto p = engine::personaPorNrofun(pantalla_.base(), empresa(), numero);
        nombre_->setCurrentText(aQt(p ? p->nombre : kNoExiste));
        elegirPersona();
        emit pasarALaFila();
    });
    return false;
}

void CabeceraMes::moverPersona(int paso) {
    pantalla_.intentar(paso < 0 ? "Ant_Click" : "Prox_Click", [&] {
        const auto m = mes();
        if (empresa().empty() || !m) return;
        const auto p = engine::personaVecina(pantalla_.base(), empresa(), deQt(nrofun_), *m, paso);
        if (!p) return;
        nombre_->setCurrentText(aQt(p->nombre));
        nrofun_->setText(aQt(p->nrofun));
        elegirPersona();
    });
}

void CabeceraMes::mostrarObservaciones() {
    if (!abierto_.abierto()) return;
    if (const auto texto =
            observacionDelMes(abierto_.mes().persona->observaciones, mes_->text().toStdString()))
        pantalla_.informar(*texto);
}

void CabeceraMes::elegirUnMesConFilas(const TieneFilas& tieneFilas) {
    const auto conFilas = [&](const std::string& e, const std::string& n, const common::Mes& m) {
        return tieneFilas ? tieneFilas(e, n, m)
                          : !engine::filasParaGrillas(pantalla_.base(), e, n, m).empty();
    };
    pantalla_.intentar("Form_Load", [&] {
        for (const auto& e : master::nombresDeEmpresas(pantalla_.base())) {
            auto m = common::Mes::desdeTexto(mesanterior_);
            for (int atras = 0; atras < 12 && m; ++atras, m = m->anterior())
                for (const auto& n : engine::nombresDelMes(pantalla_.base(), e, *m)) {
                    if (!conFilas(e, n, *m)) continue;
                    empresa_->setCurrentText(aQt(e));
                    mes_->setText(aQt(m->texto()));
                    CargarNombredelPersonal();
                    nombre_->setCurrentText(aQt(n));
                    if (releer()) {
                        nrofun_->setText(aQt(abierto_.mes().persona->nrofun));
                        emit mesAbierto();
                    }
                    return;
                }
        }
    });
}

}  // namespace nomira::pantallas
