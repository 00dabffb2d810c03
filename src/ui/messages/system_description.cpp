#include "ui/messages/system_description.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>

QString rendszerleírás(const QString &program, const QString &mappák) {
    QStringList sorok{
        QStringLiteral("Program: %1").arg(program),
        QStringLiteral("Rendszer: %1").arg(QSysInfo::prettyProductName()),
        QStringLiteral("Rendszermag: %1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()),
        QStringLiteral("Processzor: %1").arg(QSysInfo::currentCpuArchitecture()),
        QStringLiteral("Qt: %1 (%2)").arg(QString::fromLatin1(qVersion()), QGuiApplication::platformName()),
        QStringLiteral("Nyelvi beállítás: %1").arg(QLocale::system().name())};
    const QList<QScreen *> képernyők = QGuiApplication::screens();
    for (qsizetype i = 0; i < képernyők.size(); ++i) {
        const QRect hely = képernyők[i]->geometry();
        sorok.append(QStringLiteral("%1. képernyő: %2 × %3 képpont, %4 képpont hüvelykenként, %5-szeres nagyítás")
                         .arg(i + 1)
                         .arg(hely.width())
                         .arg(hely.height())
                         .arg(qRound(képernyők[i]->logicalDotsPerInch()))
                         .arg(képernyők[i]->devicePixelRatio()));
    }
    return sorok.join(u'\n') + u'\n' + mappák;
}
