// Pictures of every section of the detail window over recorded machines, for people:
// tarvo-recorded-gallery <folder> <machine>...
#include "recorded_detail.h"

#include "support/painted_widget.h"

#include <QDir>

namespace tarvo {
namespace {

constexpr QSize size{980, 640};

void saveAll(const QDir& folder, const std::string& name, AppLanguage language, bool isDark) {
    RecordedDetail machine(name);
    machine.localization().setLanguage(language);
    const QPalette palette = isDark ? darkPalette() : lightPalette();
    QApplication::setPalette(palette);
    ui::DetailView view(machine.context());
    view.setPalette(palette);
    view.resize(size);
    view.show();
    for (const ui::DetailSection section : ui::allDetailSections) {
        for (int pass = 0; pass < 3; ++pass) // until cards, rows and column have agreed on their sizes
            machine.showSection(view, section);
        const std::string file = name + "-" + std::string(identifier(section)) +
                                 (language == AppLanguage::cs ? "-cs" : "-en") +
                                 (isDark ? "-dark" : "-light") + ".png";
        painted(view, size, 1, palette.color(QPalette::Window))
            .save(folder.filePath(QString::fromStdString(file)));
    }
}

} // namespace
} // namespace tarvo

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_STYLE_OVERRIDE", "fusion");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) return 2;
    const QDir folder(arguments[1]);
    if (!folder.mkpath(QStringLiteral("."))) return 1;
    for (const QString& machine : arguments.mid(2)) {
        for (const auto language : {tarvo::AppLanguage::en, tarvo::AppLanguage::cs}) {
            tarvo::saveAll(folder, machine.toStdString(), language, false);
            tarvo::saveAll(folder, machine.toStdString(), language, true);
        }
    }
    return 0;
}
