#include "screens/haberes/cuadro_irpf.h"

#include <QGridLayout>
#include <QLabel>

#include "common/formato.h"

namespace nomira::pantallas {

namespace {

struct Casilla {
    const char* nombre;  // objectName
    const char* rotulo;
};

// Las del mes y, aparte, las del cierre del año.
constexpr Casilla kMes[] = {{"totalinggravirpf", "totalinggravirpf"},
                            {"montonominal", "montonominal"},
                            {"totalmontoded", "totalmontoded."},
                            {"totalirpf", "totalirpf"},
                            {"totaldeducciones", "totaldeducciones"},
                            {"menosirpf", "- irpf"},
                            {"totalirpfmes", "total"}};
constexpr Casilla kAnio[] = {
    {"inggrav", "inggrav año"}, {"ingbase", "ingbase año"}, {"irpfagvac", "irpf ag. y vac."}};

void poner(QGridLayout* capa, QWidget* dueno, const Casilla& c, int fila, int columna) {
    auto* caja = new QLineEdit(dueno);
    caja->setObjectName(c.nombre);
    caja->setReadOnly(true);
    caja->setFocusPolicy(Qt::NoFocus);
    caja->setAlignment(Qt::AlignRight);
    caja->setMinimumWidth(caja->fontMetrics().horizontalAdvance("0,000,000.00") + 12);
    capa->addWidget(new QLabel(c.rotulo), fila, columna * 2, Qt::AlignRight);
    capa->addWidget(caja, fila, columna * 2 + 1);
}

QString pesos(common::Dinero d) {
    return QString::fromStdString(common::formatear(d.aDouble(), "##,##0.00"));
}

}  // namespace

CuadroIRPF::CuadroIRPF(QWidget* padre) : QGroupBox("IRPF", padre) {
    setObjectName("cuadroIRPF");
    auto* capa = new QGridLayout(this);
    capa->setVerticalSpacing(2);
    int i = 0;
    for (const auto& c : kMes) {
        poner(capa, this, c, i / 2, i % 2);
        ++i;
    }
    detalleAnio_ = new QWidget(this);
    detalleAnio_->setObjectName("detalleAnio");
    auto* anio = new QGridLayout(detalleAnio_);
    anio->setContentsMargins(0, 0, 0, 0);
    i = 0;
    for (const auto& c : kAnio) {
        poner(anio, detalleAnio_, c, i / 2, i % 2);
        ++i;
    }
    capa->addWidget(detalleAnio_, capa->rowCount(), 0, 1, 4);
    limpiar();
}

QLineEdit* CuadroIRPF::casilla(const char* nombre) {
    return findChild<QLineEdit*>(nombre);
}

void CuadroIRPF::limpiar() {
    for (auto* c : findChildren<QLineEdit*>()) c->clear();
    detalleAnio_->hide();
}

void CuadroIRPF::mostrarMes(const engine::ResultadoIRPF& r, common::Dinero montoirpf,
                            common::Dinero montonominal) {
    limpiar();
    casilla("totalinggravirpf")->setText(pesos(montoirpf));
    casilla("montonominal")->setText(pesos(montonominal));
    casilla("totalmontoded")->setText(pesos(r.totalmontoded));
    casilla("totalirpf")->setText(pesos(r.irpfbruto));
    casilla("totaldeducciones")->setText(pesos(r.credito));
    casilla("menosirpf")->setText(pesos(r.restadoAguinaldo + r.irpfsalvac));
    casilla("totalirpfmes")->setText(pesos(r.total));
}

void CuadroIRPF::mostrarDiciembre(const engine::ResultadoIRPFDic& r) {
    limpiar();
    detalleAnio_->show();
    casilla("inggrav")->setText(pesos(r.inggrav));
    casilla("ingbase")->setText(pesos(r.ingbase));
    casilla("irpfagvac")->setText(pesos(r.irpfag));
    casilla("totalinggravirpf")->setText(pesos(r.inggrav));
    casilla("totalmontoded")->setText(pesos(r.totalmontoded));
    casilla("totalirpf")->setText(pesos(r.escala));
    casilla("totaldeducciones")->setText(pesos(r.credito));
    casilla("menosirpf")->setText(pesos(r.retenido));
    casilla("totalirpfmes")->setText(pesos(r.total));
}

}  // namespace nomira::pantallas
