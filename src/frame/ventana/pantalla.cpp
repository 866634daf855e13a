#include "frame/ventana/pantalla.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include "frame/ventana/impresion.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/revision_campos.h"
#include "frame/ventana/ventana_ayuda.h"

namespace nomira::ventana {

Pantalla::Pantalla(frame::Sesion& sesion, const QString& formulario, const QString& titulo,
                   QWidget* padre)
    : QWidget(padre, Qt::Window), sesion_(sesion), area_(new QScrollArea), lienzo_(new QWidget) {
    setObjectName(formulario);
    setWindowTitle(titulo);
    // En un escritorio más chico que la pantalla, barras en lugar de campos cortados.
    area_->setObjectName("area");
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    // El área con barras sólo envuelve: el foco va a los campos de adentro.
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(lienzo_);
    lienzo_->setObjectName("lienzo");
    auto* capa = new QVBoxLayout(this);
    capa->setContentsMargins(0, 0, 0, 0);
    capa->addWidget(area_);
    // Enter en un campo pasa al siguiente, como en todas las pantallas del sistema.
    qApp->installEventFilter(this);
}

Pantalla::~Pantalla() {
    for (const auto& c : hijas_) disconnect(c);
}

QString rotuloTecla(const QString& nombre, Qt::Key tecla) {
    if (tecla < Qt::Key_F1 || tecla > Qt::Key_F12) return nombre;
    return QString("F%1 %2").arg(tecla - Qt::Key_F1 + 1).arg(nombre);
}

QGroupBox* Pantalla::teclasFunciones(const std::vector<AccionTecla>& acciones) {
    auto* teclas = new QGroupBox("Teclas Funciones");
    teclas->setObjectName("TeclasFunciones");
    teclas->setLayout(botonera(acciones));
    return teclas;
}

QHBoxLayout* Pantalla::botonera(const std::vector<AccionTecla>& acciones) {
    auto* fila = new QHBoxLayout;
    for (const auto& a : acciones) {
        auto* b = new QPushButton(a.texto);
        // Tras la tecla va un blanco ("F5 Agregar") o un guión ("F5-Agregar").
        const QString texto(a.texto);
        b->setObjectName(texto.mid(texto.indexOf(QRegularExpression("[ -]")) + 1));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, a.hacer);
        fila->addWidget(b);
        tecla(QKeySequence(a.tecla), [b] {
            if (b->isEnabled()) b->click();
        });
    }
    fila->addStretch();
    return fila;
}

QPushButton* Pantalla::boton(const QString& nombre) const {
    return findChild<QPushButton*>(nombre);
}

void Pantalla::habilitarSegunHallado(bool hallado) {
    if (auto* b = boton("Agregar")) b->setEnabled(!hallado);
    if (auto* b = boton("Modificar")) b->setEnabled(hallado);
    if (auto* b = boton("Eliminar")) b->setEnabled(hallado);
}

void Pantalla::olvidarHallado(std::initializer_list<QLineEdit*> mostrados) {
    for (auto* c : mostrados) c->clear();
    if (auto* b = boton("Agregar")) b->setEnabled(false);
    if (auto* b = boton("Eliminar")) b->setEnabled(false);
}

void Pantalla::abrirRegistrada(const char* formulario) {
    intentar("Form_KeyDown",
             [&] { abrirHija(registroPantallas().at(formulario)(sesion_, this), [] {}); });
}

void Pantalla::abrirHija(QWidget* hija, std::function<void()> alCerrar) {
    hija->setAttribute(Qt::WA_DeleteOnClose);
    hijas_.push_back(connect(hija, &QObject::destroyed, this, std::move(alCerrar)));
    hija->show();
}

void Pantalla::ayuda() {
    abrirAyuda(this, objectName());
}

void Pantalla::imprimirInforme(const std::vector<std::string>& lineas,
                               const std::string& documento) {
    ventana::imprimirInforme(base(), lineas, documento, dialogo());
}

void Pantalla::alPulsarEnter(QWidget* campo, std::function<bool()> validar) {
    validaciones_[campo] = std::move(validar);
}

bool Pantalla::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return false;
    auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->key() != Qt::Key_Return && tecla->key() != Qt::Key_Enter) return false;
    auto* campo = qobject_cast<QWidget*>(objeto);
    if (!campo || campo->window() != this) return false;
    // Un combo editable entrega las teclas a su línea de edición.
    if (auto* linea = qobject_cast<QLineEdit*>(campo);
        linea && qobject_cast<QComboBox*>(linea->parent()))
        campo = static_cast<QWidget*>(linea->parent());
    if (qobject_cast<QAbstractButton*>(campo)) return false;
    if (!qobject_cast<QLineEdit*>(campo) && !qobject_cast<QComboBox*>(campo)) return false;
    if (auto it = validaciones_.find(campo); it != validaciones_.end()) {
        bool sigue = false;
        intentar("KeyPress", [&] { sigue = it->second(); });
        if (!sigue) return true;
    }
    // Un número o una fecha que no sirven no dejan pasar al campo siguiente.
    if (!campoValido(campo)) return true;
    focusNextChild();  // relativo al campo con el foco
    return true;
}

bool Pantalla::camposValidos() {
    const auto problema = primerCampoConProblema(this);
    if (!problema) return true;
    advertir(problema->mensaje);
    mostrarCampo(problema->campo);
    return false;
}

bool Pantalla::campoValido(QWidget* campo) {
    const auto problema = problemaDe(campo);
    if (problema.empty()) return true;
    advertir(problema);
    mostrarCampo(campo);
    return false;
}

QSize Pantalla::tamanoDeseado() const {
    // El contenido entero, más la barra vertical por si el alto se acota.
    const int barra = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return (lienzo_->sizeHint() + QSize(barra, 0)).expandedTo(pedido_);
}

void Pantalla::showEvent(QShowEvent* evento) {
    if (!ajustada_) {
        ajustada_ = true;
        // F1 de toda pantalla, salvo que tenga la suya (un botón "F1 Ayuda").
        if (!teclas_.count(Qt::Key_F1)) tecla(QKeySequence(Qt::Key_F1), [this] { ayuda(); });
        ajustarAlEscritorio();
        // Una pantalla que no eligió dónde empezar empieza en su primer campo:
        // el liquidador teclea sin tener que buscar el foco.
        if (!focusWidget())
            for (auto* w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain())
                if (isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus) && w->isEnabled() &&
                    w->isVisibleTo(this)) {
                    w->setFocus();
                    break;
                }
    }
    QWidget::showEvent(evento);
}

// El tamaño deseado acotado al escritorio (sin la barra de tareas), y la ventana
// corrida para que el título y los botones queden a la vista.
void Pantalla::ajustarAlEscritorio() {
    auto* pantalla = screen();
    if (!pantalla) return;
    const QRect zona = pantalla->availableGeometry();
    // Lo que agrega el gestor de ventanas: la barra del título y los bordes.
    const QSize marco = isWindow() ? QSize(16, 40) : QSize();
    resize(tamanoDeseado().boundedTo(zona.size() - marco));
    if (!isWindow()) return;
    QRect r = frameGeometry();
    r.setSize(size() + marco);
    if (r.right() > zona.right()) r.moveRight(zona.right());
    if (r.bottom() > zona.bottom()) r.moveBottom(zona.bottom());
    if (r.left() < zona.left()) r.moveLeft(zona.left());
    if (r.top() < zona.top()) r.moveTop(zona.top());
    move(r.topLeft());
}

void Pantalla::hacerFicha() {
    setWindowModality(Qt::ApplicationModal);
    if (!teclas_.count(Qt::Key_Escape)) tecla(QKeySequence(Qt::Key_Escape), [this] { close(); });
}

void Pantalla::advertir(const std::string& texto) {
    dialogo().avisar(common::TipoAviso::Advertencia, texto);
}

void Pantalla::informar(const std::string& texto) {
    dialogo().avisar(common::TipoAviso::Informacion, texto);
}

bool Pantalla::confirmar(const std::string& titulo, bool porDefectoSi) {
    return dialogo().confirmar(titulo, "¿Desea continuar?", porDefectoSi);
}

void Pantalla::intentar(const char* procedimiento, const std::function<void()>& accion) {
    try {
        accion();
    } catch (const std::exception& e) {
        common::avisarErrorInesperado(dialogo(), e, procedimiento, objectName().toStdString());
    }
}

void Pantalla::tecla(const QKeySequence& secuencia, std::function<void()> accion) {
    teclas_.insert(secuencia[0].toCombined());
    auto* atajo = new QShortcut(secuencia, this);
    atajo->setContext(Qt::WindowShortcut);
    connect(atajo, &QShortcut::activated, this, std::move(accion));
}

}  // namespace nomira::ventana
