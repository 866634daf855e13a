#include "screens/haberes/avance_empresa.h"

#include <QApplication>
#include <QHBoxLayout>
#include <vector>

namespace nomira::pantallas {

namespace {

// Mientras corre toda la empresa sólo queda a mano el botón de detenerla: se
// deshabilita todo lo que no lo contiene.
class Bloqueo {
  public:
    Bloqueo(QWidget* raiz, QWidget* libre) { bloquear(raiz, libre); }
    ~Bloqueo() {
        for (auto* w : bloqueados_) w->setEnabled(true);
    }

  private:
    void bloquear(QWidget* raiz, QWidget* libre) {
        for (auto* w : raiz->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (w == libre || !w->isEnabled() || w->isWindow()) continue;
            if (w->isAncestorOf(libre)) {
                bloquear(w, libre);
                continue;
            }
            w->setEnabled(false);
            bloqueados_.push_back(w);
        }
    }
    std::vector<QWidget*> bloqueados_;
};

}  // namespace

AvanceEmpresa::AvanceEmpresa(QWidget* padre)
    : QWidget(padre),
      barra_(new QProgressBar),
      persona_(new QLabel),
      detener_(new QPushButton("De&tener")) {
    barra_->setObjectName("avance");
    barra_->setFormat("%v de %m");
    barra_->setRange(0, 1);
    barra_->setValue(0);
    barra_->setTextVisible(false);
    persona_->setObjectName("personaEnCurso");
    detener_->setObjectName("Detener");
    detener_->setAutoDefault(false);
    detener_->setEnabled(false);
    connect(detener_, &QPushButton::clicked, this, [this] { detenido_ = true; });
    auto* capa = new QHBoxLayout(this);
    capa->setContentsMargins(0, 0, 0, 0);
    capa->addWidget(barra_, 1);
    capa->addWidget(persona_, 2);
    capa->addWidget(detener_);
}

engine::ResultadoEmpresa AvanceEmpresa::correr(
    QWidget* pantalla, const std::function<engine::ResultadoEmpresa()>& corrida) {
    engine::ResultadoEmpresa r;
    {
        Bloqueo bloqueo(pantalla, this);
        empezar();
        r = corrida();
        terminar();
    }
    limpiar();
    return r;
}

void AvanceEmpresa::empezar() {
    detenido_ = false;
    corriendo_ = true;
    barra_->setRange(0, 1);
    barra_->setValue(0);
    barra_->setTextVisible(true);
    persona_->clear();
    detener_->setEnabled(true);
}

void AvanceEmpresa::terminar() {
    corriendo_ = false;
    detener_->setEnabled(false);
}

void AvanceEmpresa::limpiar() {
    barra_->reset();
    barra_->setTextVisible(false);
    persona_->clear();
}

engine::ProgresoEmpresa AvanceEmpresa::progreso() {
    return [this](std::size_t i, std::size_t n, const std::string& nombre) {
        barra_->setRange(0, static_cast<int>(n));
        barra_->setValue(static_cast<int>(i));
        persona_->setText(QString::fromStdString(nombre));
        // Un solo hilo: el clic en Detener llega al atender los eventos aquí.
        QApplication::processEvents();
    };
}

engine::CancelarEmpresa AvanceEmpresa::cancelar() {
    return [this] {
        QApplication::processEvents();
        return detenido_;
    };
}

}  // namespace nomira::pantallas
