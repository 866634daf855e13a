#include "screens/personal/campos_ficha.h"

#include "common/antiguedad.h"
#include "frame/ventana/texto_qt.h"
#include "master/catalogos.h"
#include "master/listado_personal.h"
#include "master/validacion_personal.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

QLineEdit* CamposFicha::texto(Columna m, const char* nombre, int ancho) {
    auto* e = new QLineEdit;
    e->setObjectName(nombre);
    if (ancho > 0) e->setMaximumWidth(ancho);
    enlaces_.push_back(
        {m, [e] { return deQt(e); }, [e](const std::string& v) { e->setText(aQt(v)); }});
    return e;
}

ventana::CampoNumero* CamposFicha::numero(Columna m, const char* nombre, int ancho,
                                          ventana::ClaseNumero clase) {
    auto* e = new ventana::CampoNumero(clase);
    e->setObjectName(nombre);
    e->setMaximumWidth(ancho);
    // Se guarda con punto decimal; lo guardado se muestra tal cual.
    enlaces_.push_back(
        {m, [e] { return e->valor(); }, [e](const std::string& v) { e->setText(aQt(v)); }});
    return e;
}

ventana::CampoFecha* CamposFicha::fecha(Columna m, const char* nombre) {
    auto* e = new ventana::CampoFecha;
    e->setObjectName(nombre);
    enlaces_.push_back(
        {m, [e] { return deQt(e); },
         [e](const std::string& v) { e->setText(aQt(master::fechaParaPantalla(v))); }});
    pantalla_.alPulsarEnter(e, [this, e] { return enterFecha(e); });
    return e;
}

QComboBox* CamposFicha::lista(Columna m, const char* nombre, const QStringList& items) {
    auto* c = new QComboBox;
    c->setObjectName(nombre);
    c->setMinimumWidth(120);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->addItem("");
    c->addItems(items);
    enlaces_.push_back(
        {m, [c] { return deQt(c); }, [c](const std::string& v) { c->setCurrentText(aQt(v)); }});
    return c;
}

QComboBox* CamposFicha::listaConTextos(Columna m, const char* nombre,
                                       const std::vector<std::pair<QString, QString>>& items) {
    auto* c = new QComboBox;
    c->setObjectName(nombre);
    c->setMinimumWidth(120);
    c->addItem("", QString());
    for (const auto& [guardado, mostrado] : items) c->addItem(mostrado, guardado);
    enlaces_.push_back({m, [c] { return c->currentData().toString().toStdString(); },
                        [c](const std::string& v) {
                            const int i = c->findData(aQt(v));
                            // Un valor viejo que no está en la lista se muestra como está.
                            if (i >= 0) {
                                c->setCurrentIndex(i);
                            } else {
                                c->addItem(aQt(v), aQt(v));
                                c->setCurrentIndex(c->count() - 1);
                            }
                        }});
    return c;
}

ventana::ComboCatalogo* CamposFicha::catalogo(Columna m, const char* nombre, const char* formulario,
                                              const char* tabla) {
    std::string t = tabla;
    auto* c = new ventana::ComboCatalogo(
        sesion_, formulario, [this, t] { return master::textosCatalogo(pantalla_.base(), t); });
    c->setObjectName(nombre);
    c->setMinimumWidth(180);
    enlaces_.push_back(
        {m, [c] { return deQt(c); }, [c](const std::string& v) { c->setCurrentText(aQt(v)); }});
    return c;
}

ventana::GrupoOpciones* CamposFicha::opciones(Columna m, const char* nombre, const QString& titulo,
                                              std::vector<std::pair<QString, QString>> items) {
    auto* g = new ventana::GrupoOpciones(titulo, std::move(items));
    g->setObjectName(nombre);
    if (m)
        enlaces_.push_back({m, [g] { return g->valor().toStdString(); },
                            [g](const std::string& v) { g->ponerValor(aQt(v)); }});
    return g;
}

bool CamposFicha::enterFecha(ventana::CampoFecha* campo) {
    if (campo->formatoValido()) return true;
    pantalla_.advertir(ventana::kFormatoFecha);
    return false;
}

bool CamposFicha::enterNombre(QLineEdit* campo, const std::string& quien) {
    const auto m = master::comprobarComa(deQt(campo), quien);
    if (m.empty()) return true;
    pantalla_.advertir(m);
    return false;
}

void CamposFicha::juntar(master::Persona& p) const {
    for (const auto& e : enlaces_) p.*e.miembro = e.leer();
}

void CamposFicha::mostrar(const master::Persona& p) const {
    for (const auto& e : enlaces_) e.poner(p.*e.miembro);
}

std::vector<std::string> CamposFicha::sectores() {
    return master::textosCatalogo(pantalla_.base(), "sectores",
                                  {{"nombre", grupo}, {"nombre2", subgrupo}});
}

std::vector<std::string> CamposFicha::categoriasDe(const QString& sector) {
    return master::textosCatalogo(
        pantalla_.base(), "categorias",
        {{"nombre", grupo}, {"nombre2", subgrupo}, {"nombre3", deQt(sector)}});
}

void CamposActividad::enlazar(CamposFicha& campos, std::function<std::string()> referencias) {
    sector->cambiarCargador([&campos] { return campos.sectores(); });
    auto* s = sector;
    categoria->cambiarCargador([&campos, s] { return campos.categoriasDe(s->currentText()); });
    auto* c = categoria;
    campos.pantalla().alPulsarEnter(sector, [c] {
        c->recargar();
        return true;
    });
    campos.pantalla().alPulsarEnter(fechaeg, [this, &campos, referencias] {
        if (!campos.enterFecha(fechaeg)) return false;
        if (fechaeg->text().isEmpty() || fechaing->text().isEmpty()) return true;
        motivoeg->setCurrentText("");
        motivoeg->recargar();
        const auto inicio = common::inicioDeAntiguedad(deQt(fechaing), referencias());
        antiguedad->setText(QString::number(common::antiguedadEntre(inicio, deQt(fechaeg)).anios));
        return true;
    });
}

}  // namespace nomira::pantallas
