#include "ui/messages/system_description.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>

using namespace Qt::StringLiterals;

QString rendszerleírás(const QString &program, const QString &mappák) {
    QStringList sorok{u"Program: %1"_s.arg(program),
                      u"Rendszer: %1"_s.arg(QSysInfo::prettyProductName()),
                      u"Rendszermag: %1 %2"_s.arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()),
                      u"Processzor: %1"_s.arg(QSysInfo::currentCpuArchitecture()),
                      u"Qt: %1 (%2)"_s.arg(QString::fromLatin1(qVersion()), QGuiApplication::platformName()),
                      u"Nyelvi beállítás: %1"_s.arg(QLocale::system().name())};
    const QList<QScreen *> képernyők = QGuiApplication::screens();
    for (qsizetype i = 0; i < képernyők.size(); ++i) {
        const QRect hely = képernyők[i]->geometry();
        sorok.append(u"%1. képernyő: %2 × %3 képpont, %4 képpont hüvelykenként, %5-szeres nagyítás"_s.arg(i + 1)
                         .arg(hely.width())
                         .arg(hely.height())
                         .arg(qRound(képernyők[i]->logicalDotsPerInch()))
                         .arg(képernyők[i]->devicePixelRatio()));
    }
    return sorok.join(u'\n') + u'\n' + mappák;
}
