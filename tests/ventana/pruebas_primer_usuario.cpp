// El diálogo del primer administrador no acepta lo que el ingreso nunca podría
// reconocer.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "apoyo/dialogo_guion.h"
#include "frame/usuarios.h"
#include "frame/ventana/primer_usuario.h"

using namespace nomira;

TEST(PrimerUsuario, RechazaMayusculasYMinusculasMezcladas) {
    pruebas::DialogoGuion dialogo;
    ventana::DialogoPrimerUsuario d(dialogo);
    auto* usuario = d.findChild<QLineEdit*>("usuario");
    auto* password = d.findChild<QLineEdit*>("password");
    auto* repetido = d.findChild<QLineEdit*>("repetido");
    auto* ok = d.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    ASSERT_TRUE(usuario && password && repetido && ok);
    auto escribir = [](QLineEdit* campo, const char* texto) {
        campo->clear();
        QTest::keyClicks(campo, texto);
    };

    escribir(usuario, "Admin");
    escribir(password, "clave");
    escribir(repetido, "clave");
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(d.result(), QDialog::Rejected);
    EXPECT_EQ(dialogo.ultimoMensaje(), frame::kUsuarioMezclado);

    escribir(usuario, "ADMIN");
    escribir(password, "Clave");
    escribir(repetido, "Clave");
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(d.result(), QDialog::Rejected);
    EXPECT_EQ(dialogo.ultimoMensaje(), frame::kPasswordMezclado);

    escribir(password, "CLAVE");
    escribir(repetido, "CLAVE");
    const auto avisos = dialogo.mensajes.size();
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(d.result(), QDialog::Accepted);
    EXPECT_EQ(dialogo.mensajes.size(), avisos);
    EXPECT_EQ(d.usuario(), "ADMIN");
}
