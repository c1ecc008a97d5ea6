#include "qt/uebersetzung.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace tabulon {

bool deutscheQtTexteLaden(QCoreApplication& programm) {
    auto* uebersetzer = new QTranslator(&programm);
    if (!uebersetzer->load(QStringLiteral("qtbase_de"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete uebersetzer;
        return false;
    }
    return QCoreApplication::installTranslator(uebersetzer);
}

} // namespace tabulon
