#include "screens/variables/pantalla_aumentos.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "common/formato.h"
#include "common/numeros.h"
#include "common/reloj.h"
#include "common/texto.h"
#include "frame/ventana/texto_qt.h"
#include "master/aumentos.h"
#include "master/catalogos.h"
#include "master/empresas.h"

namespace nomira::pantallas {

using ventana::deQt;

namespace {

double porcentajeDe(const ventana::CampoNumero* c) {
    return common::textoANumero(c->valor());
}

QPushButton* nuevoBoton(const char* texto, const char* nombre) {
    auto* b = new QPushButton(texto);
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

PantallaAumentos::PantallaAumentos(frame::Sesion& sesion, master::CategoriaLaboral sector,
                                   QWidget* padre)
    : Pantalla(sesion, "Form408", "Actualizar Sueldos", padre), sector_(std::move(sector)) {
    categoria = new ventana::ComboCatalogo(sesion, "Form390", [this] {
        return master::valoresCatalogo(base(), "categorias",
                                       {{"nombre", sector_.grupo},
                                        {"nombre2", sector_.subgrupo},
                                        {"nombre3", sector_.sector}});
    });
    empresa->setEditable(true);
    empresa->addItem("");
    intentar("Form_Load", [this] {
        for (const auto& e : master::nombresDeEmpresas(base()))
            empresa->addItem(QString::fromStdString(e));
    });

    auto* campos = new QFormLayout;
    const std::tuple<const char*, const char*, QWidget*> filas[] = {
        {"Recuperación", "recuperacion", recuperacion}, {"Inflación", "inflacion", inflacion},
        {"Porcentaje", "porcentaje", porcentaje},       {"Empresa", "empresa", empresa},
        {"Categoría", "categoria", categoria},          {"FSueVig.", "fsuevig", fsuevig}};
    for (const auto& [etiqueta, nombre, campo] : filas) {
        campo->setObjectName(nombre);
        campos->addRow(etiqueta, campo);
    }
    for (auto* c : {recuperacion, inflacion, porcentaje}) c->setMaximumWidth(120);
    auto* sectorElegido = new QLabel(
        QString::fromStdString(sector_.grupo + " / " + sector_.subgrupo + " / " + sector_.sector));
    sectorElegido->setObjectName("sectorElegido");
    sectorElegido->setVisible(!sector_.grupo.empty());

    auto* cat = new QGroupBox("Sueldos mínimos por categoría");
    auto* filaCat = new QHBoxLayout(cat);
    auto* aumCat = nuevoBoton("Aum.Sueldos x Categorías", "AumentarSueldosCategorias");
    auto* elimCat = nuevoBoton("Elim.Ult.Aum. x Categorías", "Eliminar");
    filaCat->addWidget(aumCat);
    filaCat->addWidget(elimCat);
    auto* emp = new QGroupBox("Sueldos del personal");
    auto* filaEmp = new QHBoxLayout(emp);
    auto* aumEmp = nuevoBoton("Aum.Sueldos x Empresa", "AumentarSueldosEmpresa");
    auto* bajar = nuevoBoton("Bajar Sueldos x Empresa", "Bajar");
    filaEmp->addWidget(aumEmp);
    filaEmp->addWidget(bajar);
    connect(aumCat, &QPushButton::clicked, this, [this] { AumentarSueldosCategorias_Click(); });
    connect(elimCat, &QPushButton::clicked, this, [this] { Eliminar_Click(); });
    connect(aumEmp, &QPushButton::clicked, this, [this] { AumentarSueldosEmpresa_Click(false); });
    connect(bajar, &QPushButton::clicked, this, [this] { AumentarSueldosEmpresa_Click(true); });

    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(sectorElegido);
    todo->addLayout(campos);
    todo->addWidget(cat);
    todo->addWidget(emp);
    todo->addStretch();
    pedirTamano(480, 360);
    tecla(QKeySequence(Qt::Key_F1), [this] { ayuda(); });

    for (auto* c : {recuperacion, inflacion})
        alPulsarEnter(c, [this] { return calcularPorcentaje(); });
    recuperacion->setFocus();
}

// Recuperación e inflación se componen; la vacía vale 0.
bool PantallaAumentos::calcularPorcentaje() {
    for (auto* c : {recuperacion, inflacion})
        if (!campoValido(c)) return false;
    for (auto* c : {recuperacion, inflacion})
        if (deQt(c).empty()) c->setText("0");
    const double p =
        master::porcentajeCompuesto(porcentajeDe(recuperacion), porcentajeDe(inflacion));
    porcentaje->setText(QString::fromStdString(common::formatear(p, "##,##0.00")));
    return true;
}

void PantallaAumentos::finalizado(const char* texto) {
    dialogo().avisar(common::TipoAviso::Informacion, "Mensaje de confirmación", texto);
}

void PantallaAumentos::AumentarSueldosCategorias_Click() {
    if (!camposValidos()) return;
    intentar("AumentarSueldosCategorias_Click", [this] {
        if (deQt(porcentaje).empty()) return advertir("Debe completar el campo Porcentaje.");
        if (const auto m = master::rechazoPorcentaje(porcentajeDe(porcentaje))) return advertir(*m);
        if (!master::confirmarPorcentaje(dialogo(), porcentajeDe(porcentaje), false)) return;
        master::aumentarSueldosMinimos(base(), sector_.grupo, sector_.subgrupo, sector_.sector,
                                       porcentajeDe(porcentaje));
        finalizado("Aumento de Sueldos Mínimos x Categorías finalizado.");
    });
}

void PantallaAumentos::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        master::eliminarUltimoAumento(base(), sector_.grupo, sector_.subgrupo, sector_.sector);
        finalizado("Elimino Ult. Aum. x Categorías finalizado.");
    });
}

void PantallaAumentos::AumentarSueldosEmpresa_Click(bool bajar) {
    if (!camposValidos()) return;
    intentar(bajar ? "Bajar_Click" : "AumentarSueldosEmpresa_Click", [this, bajar] {
        if (deQt(porcentaje).empty() || deQt(empresa).empty() || deQt(fsuevig).empty())
            return advertir("Debe completar los campos Porcentaje, Empresa y FSueVig.");
        if (const auto m = master::rechazoPorcentaje(porcentajeDe(porcentaje))) return advertir(*m);
        if (!master::confirmarPorcentaje(dialogo(), porcentajeDe(porcentaje), bajar)) return;
        const auto fecha = common::Fecha::desdeTexto(deQt(fsuevig));
        if (!fecha) throw common::Fallo(13, "No coinciden los tipos");
        master::PedidoAumento pedido{deQt(empresa), porcentajeDe(porcentaje), *fecha,
                                     common::textoDeCatalogo(deQt(categoria)), bajar};
        master::aumentarSueldosEmpresa(base(), pedido, common::hoy());
        finalizado(bajar ? "Decremento de Sueldos x Empresas finalizado."
                         : "Aumento de Sueldos x Empresas finalizado.");
    });
}

}  // namespace nomira::pantallas
