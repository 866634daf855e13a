#include "frame/ventana/pantalla_configuracion.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "common/empaquetados.h"
#include "frame/carpeta.h"
#include "frame/ingreso.h"
#include "frame/ventana/texto_qt.h"
#include "frame/usuarios.h"

namespace nomira::ventana {

namespace {

QLineEdit* campoNumero(const char* nombre) {
    auto* e = new QLineEdit;
    e->setObjectName(nombre);
    e->setValidator(new QIntValidator(0, 999999, e));
    e->setMaximumWidth(80);
    return e;
}

const char* const kGrupos[] = {"Configuración", "Empresas", "Personal",
                               "Liquidaciones", "Informes", "Utilidades"};
const char* const kCategorias[] = {"Categoría 1 (administrador)", "Categoría 2 (supervisor)",
                                   "Categoría 3 (operador)"};

}  // namespace

PantallaConfiguracion::PantallaConfiguracion(frame::Sesion& sesion, QWidget* padre)
    : QWidget(padre, Qt::Window), sesion_(sesion) {
    setObjectName("Form13");
    setWindowTitle("Configuración");
    auto* paginas = new QTabWidget;
    paginas->addTab(paginaUsuarios(), "Usuarios");
    paginas->addTab(paginaPermisos(), "Permisos");
    paginas->addTab(paginaImpresion(), "Impresión y recibos");

    auto* modificar = new QPushButton("Modificar");
    modificar->setObjectName("Modificar");
    auto* salir = new QPushButton("Salir");
    connect(modificar, &QPushButton::clicked, this, &PantallaConfiguracion::modificar);
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(modificar);
    botones->addWidget(salir);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(paginas);
    todo->addLayout(botones);
    cargar();
}

QWidget* PantallaConfiguracion::paginaUsuarios() {
    auto* pagina = new QWidget;
    auto* grilla = new QGridLayout(pagina);
    grilla->addWidget(new QLabel("Usuario"), 0, 1);
    grilla->addWidget(new QLabel("Password"), 0, 2);
    grilla->addWidget(new QLabel("Categoría"), 0, 3);
    for (int i = 0; i < master::kCantUsuarios; ++i) {
        const auto n = QString::number(i + 1);
        auto& f = usuarios_[i];
        f.usu = new QLineEdit;
        f.usu->setObjectName("usu" + n);
        f.pas = new QLineEdit;
        f.pas->setObjectName("pas" + n);
        f.pas->setEchoMode(QLineEdit::Password);
        f.cat = new QComboBox;
        f.cat->setObjectName("cat" + n);
        f.cat->addItems({"", "1", "2", "3"});
        grilla->addWidget(new QLabel(n), i + 1, 0);
        grilla->addWidget(f.usu, i + 1, 1);
        grilla->addWidget(f.pas, i + 1, 2);
        grilla->addWidget(f.cat, i + 1, 3);
    }
    grilla->addWidget(new QLabel("El password queda como está mientras no se escriba uno nuevo."),
                      master::kCantUsuarios + 1, 0, 1, 4);
    return pagina;
}

QWidget* PantallaConfiguracion::paginaPermisos() {
    auto* pagina = new QWidget;
    auto* fila = new QHBoxLayout(pagina);
    for (int c = 0; c < 3; ++c) {
        auto* marco = new QGroupBox(kCategorias[c]);
        auto* lista = new QVBoxLayout(marco);
        for (int g = 0; g < 6; ++g) {
            const int n = c * 6 + g;
            checks_[n] = new QCheckBox(kGrupos[g]);
            checks_[n]->setObjectName(QString("check%1").arg(n + 1));
            lista->addWidget(checks_[n]);
        }
        lista->addStretch();
        fila->addWidget(marco);
    }
    return pagina;
}

QWidget* PantallaConfiguracion::paginaImpresion() {
    auto* pagina = new QWidget;
    auto* todo = new QVBoxLayout(pagina);
    auto* impresoras = new QGroupBox("Impresora");
    auto* grilla = new QGridLayout(impresoras);
    const char* const usos[] = {"Recibos", "Informes", "Otros Inf."};
    const char* const nombres[] = {"recibos", "informes", "otros"};
    for (int i = 0; i < 3; ++i) {
        auto& imp = impresion_[i];
        imp.impresora = new QComboBox;
        imp.impresora->setObjectName(QString("impresora_") + nombres[i]);
        imp.impresora->setEditable(true);
        imp.impresora->addItem("");
        imp.impresora->addItems(QPrinterInfo::availablePrinterNames());
        imp.fuente = new QFontComboBox;
        imp.fuente->setObjectName(QString("fuente_") + nombres[i]);
        imp.fuente->setEditable(
            true);  // guarda el nombre escrito aunque la fuente no esté en esta PC
        imp.tamano = new QSpinBox;
        imp.tamano->setObjectName(QString("tamano_") + nombres[i]);
        imp.tamano->setRange(4, 36);
        grilla->addWidget(new QLabel(usos[i]), i, 0);
        grilla->addWidget(imp.impresora, i, 1);
        grilla->addWidget(imp.fuente, i, 2);
        grilla->addWidget(imp.tamano, i, 3);
    }
    todo->addWidget(impresoras);

    contitulos_ = GrupoOpciones::siNo("Imp.con títulos?");
    cantpers_ = new GrupoOpciones("Cant.pers.imp.?",
                                  {{"todos", "Todos"}, {"uno", "Uno"}, {"algunos", "Algunos"}});
    autoguardado_ = GrupoOpciones::siNo("Auto-guardado?");
    copiativo_ = GrupoOpciones::siNo("Con copiativo?");
    imppesos_ = GrupoOpciones::siNo("Imp.pesos?");
    auto* opciones = new QGridLayout;
    opciones->addWidget(contitulos_, 0, 0);
    opciones->addWidget(cantpers_, 0, 1);
    opciones->addWidget(autoguardado_, 1, 0);
    opciones->addWidget(copiativo_, 1, 1);
    opciones->addWidget(imppesos_, 2, 0);

    auto* algunos = new QGroupBox("Algunos Nro Fun");
    auto* rango = new QHBoxLayout(algunos);
    desde_ = campoNumero("desdenrofun");
    hasta_ = campoNumero("hastanrofun");
    rango->addWidget(new QLabel("desde:"));
    rango->addWidget(desde_);
    rango->addWidget(new QLabel("hasta:"));
    rango->addWidget(hasta_);
    opciones->addWidget(algunos, 2, 1);
    todo->addLayout(opciones);

    auto* hoja = new QFormLayout;
    corte_ = campoNumero("cortehoja");
    arriba_ = campoNumero("cantlineasarr");
    izquierda_ = campoNumero("cantespizq");
    nroempges_ = campoNumero("nroempges");
    hoja->addRow("Corte:", corte_);
    hoja->addRow("Arr.:", arriba_);
    hoja->addRow("Izq.:", izquierda_);
    hoja->addRow("NroEmpresaGestora:", nroempges_);
    hoja->addRow("Carpeta del auto-guardado:",
                 new QLabel(QString::fromStdString(frame::rutaSoftware().string())));
    todo->addLayout(hoja);
    todo->addStretch();
    return pagina;
}

void PantallaConfiguracion::cargar() {
    try {
        auto c = master::leerConfiguracion(*sesion_.base);
        for (int i = 0; i < master::kCantUsuarios; ++i) {
            usuarios_[i].usu->setText(aQt(c.usuarios[i].usu));
            usuarios_[i].pas->clear();
            usuarios_[i].pas->setPlaceholderText(c.usuarios[i].pas.empty() ? "" : "(sin cambios)");
            usuarios_[i].cat->setCurrentText(aQt(c.usuarios[i].cat));
        }
        for (int i = 0; i < master::kCantPermisos; ++i) checks_[i]->setChecked(c.checks[i] == "1");
        const std::string* fuentes[] = {&c.tiporec, &c.tipoinf, &c.tipocom};
        const std::string* tamanos[] = {&c.tamrec, &c.taminf, &c.tamcom};
        const std::string* impresoras[] = {&c.impresorarecibos, &c.impresorainformes,
                                           &c.impresoracomanda};
        for (int i = 0; i < 3; ++i) {
            impresion_[i].impresora->setCurrentText(aQt(*impresoras[i]));
            impresion_[i].fuente->setCurrentText(aQt(*fuentes[i]));
            impresion_[i].tamano->setValue(QString::fromStdString(*tamanos[i]).toInt());
        }
        contitulos_->ponerValor(aQt(c.contitulos));
        cantpers_->ponerValor(aQt(c.cantpers));
        autoguardado_->ponerValor(aQt(c.tipodepapel));
        const auto copiativo = common::ConCopiativo::leer(c.concopiativo);
        copiativo_->ponerValor(aQt(copiativo.copiativo));
        imppesos_->ponerValor(aQt(copiativo.imprimePesos));
        desde_->setText(aQt(c.desdenrofun));
        hasta_->setText(aQt(c.hastanrofun));
        corte_->setText(aQt(c.cortehoja));
        arriba_->setText(aQt(c.cantlineasarr));
        izquierda_->setText(aQt(c.cantespizq));
        nroempges_->setText(aQt(c.nroempges));
    } catch (const std::exception& e) {
        common::avisarErrorInesperado(*sesion_.dialogo, e, "Form_Load", "Form13");
    }
}

std::optional<master::Configuracion> PantallaConfiguracion::leerPantalla() {
    auto c = master::leerConfiguracion(*sesion_.base);
    for (int i = 0; i < master::kCantUsuarios; ++i) {
        const auto& f = usuarios_[i];
        const auto usu = deQt(f.usu->text()), pas = f.pas->text().toStdString(),
                   cat = deQt(f.cat->currentText());
        auto& u = c.usuarios[i];
        if (usu.empty()) {
            u = {};
            continue;
        }
        if (cat.empty() || (pas.empty() && u.pas.empty())) {
            sesion_.dialogo->avisar(common::TipoAviso::Advertencia,
                                    "El usuario " + usu + " debe tener PASSWORD y categoría.");
            f.usu->setFocus();
            return std::nullopt;
        }
        if (const auto rechazo = frame::rechazoUsuario(usu, pas)) {
            sesion_.dialogo->avisar(common::TipoAviso::Advertencia, *rechazo);
            (*rechazo == frame::kUsuarioMezclado ? f.usu : f.pas)->setFocus();
            return std::nullopt;
        }
        if (pas.empty())
            u.usu = usu, u.cat = cat;  // conserva el hash guardado
        else
            frame::ponerUsuario(c, i + 1, usu, pas, cat);
    }
    for (int i = 0; i < master::kCantPermisos; ++i)
        c.checks[i] = checks_[i]->isChecked() ? "1" : "0";
    std::string* impresoras[] = {&c.impresorarecibos, &c.impresorainformes, &c.impresoracomanda};
    std::string* fuentes[] = {&c.tiporec, &c.tipoinf, &c.tipocom};
    std::string* tamanos[] = {&c.tamrec, &c.taminf, &c.tamcom};
    for (int i = 0; i < 3; ++i) {
        *impresoras[i] = deQt(impresion_[i].impresora->currentText());
        *fuentes[i] = deQt(impresion_[i].fuente->currentText());
        *tamanos[i] = std::to_string(impresion_[i].tamano->value());
    }
    c.contitulos = deQt(contitulos_->valor());
    c.cantpers = deQt(cantpers_->valor());
    c.tipodepapel = deQt(autoguardado_->valor());
    c.concopiativo =
        common::ConCopiativo{deQt(copiativo_->valor()), deQt(imppesos_->valor())}.texto();
    c.desdenrofun = deQt(desde_->text());
    c.hastanrofun = deQt(hasta_->text());
    c.cortehoja = deQt(corte_->text());
    c.cantlineasarr = deQt(arriba_->text());
    c.cantespizq = deQt(izquierda_->text());
    c.nroempges = deQt(nroempges_->text());
    return c;
}

void PantallaConfiguracion::modificar() {
    try {
        if (!sesion_.dialogo->confirmar("Modificar configuracion", "¿Desea continuar?")) return;
        auto c = leerPantalla();
        if (!c) return;
        master::guardarConfiguracion(*sesion_.base, *c);
        if (c->tipodepapel == "Si") std::filesystem::create_directories(frame::rutaSoftware());
        cargar();
    } catch (const std::exception& e) {
        common::avisarErrorInesperado(*sesion_.dialogo, e, "Modificar_Click", "Form13");
    }
}

}  // namespace nomira::ventana
