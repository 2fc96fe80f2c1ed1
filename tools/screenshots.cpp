// Draws every page of a view into a folder, without a display: NN-frame.png for the node at position NN.
//   screenshots JOB VIEW LANGUAGE light|dark|contrast FOLDER
// VIEW is a level of the editor, LANGUAGE one of its language files.
#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QTemporaryDir>
#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <vector>

#include "desktop/DesktopPrompts.h"
#include "desktop/FormWindow.h"
#include "desktop/OutlineStyle.h"
#include "editor/Views.h"
#include "editor/frmEdit.h"

namespace {

using namespace kestedit;
namespace fs = std::filesystem;

/// Every folder is there, so that the pictures of a sample job do not depend on the machine.
class SampleFolders final : public FileSystem {
  public:
    [[nodiscard]] bool FileExists(const fs::path& file) const override { return local_.FileExists(file); }
    [[nodiscard]] bool FolderExists(const fs::path&) const override { return true; }
    [[nodiscard]] bool isSameFile(const fs::path& left, const fs::path& right) const override { return left == right; }
    void DeleteFile(const fs::path&) const override {}
    void CreateFolder(const fs::path&) const override {}
    [[nodiscard]] std::string BuildPath(std::string_view folder, std::string_view name) const override {
        return local_.BuildPath(folder, name);
    }
    [[nodiscard]] std::string Absolute(std::string_view path) const override { return local_.Absolute(path); }
    [[nodiscard]] std::string GetFileName(std::string_view path) const override { return local_.GetFileName(path); }
    [[nodiscard]] FolderStatus inspectFolder(const fs::path&, std::chrono::milliseconds) const override {
        return {.answered = true, .exists = true, .readable = true, .writable = true};
    }
    [[nodiscard]] fs::path resolve(const fs::path& path, std::chrono::milliseconds) const override { return path; }

  private:
    LocalFileSystem local_;
};

struct Wish {
    std::string job;
    std::string view;
    fs::path language;
    std::string palette;
    fs::path folder;
};

QPalette darkPalette() {
    QPalette palette(QColor(49, 54, 59), QColor(42, 46, 50));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    palette.setColor(QPalette::Link, QColor(29, 153, 243));
    return palette;
}

/// As the high contrast themes of desktops have it: black, white, and one strong colour for what is selected.
QPalette contrastPalette() {
    QPalette palette(Qt::white, QColor(50, 50, 50), QColor(160, 160, 160), Qt::black, QColor(130, 130, 130), Qt::white,
                     Qt::white, Qt::black, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, Qt::yellow);
    for (const auto text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, text, Qt::gray);
    return palette;
}

QPalette paletteOf(const std::string& name) {
    if (name == "light") return QApplication::palette();
    if (name == "dark") return darkPalette();
    if (name == "contrast") return contrastPalette();
    throw std::invalid_argument("there is no palette " + name);
}

/// The 256 colours that cover most of the picture. Text and flat widgets have few, so nothing is lost to the eye.
QList<QRgb> mainColours(const QImage& picture) {
    std::unordered_map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    std::vector<std::pair<int, QRgb>> ranking;
    ranking.reserve(counts.size());
    for (const auto& [colour, count] : counts)
        ranking.emplace_back(count, colour);
    std::ranges::sort(ranking, std::greater{});
    QList<QRgb> colours;
    for (const auto& [count, colour] : std::span(ranking).first(std::min<std::size_t>(ranking.size(), 256)))
        colours.push_back(colour);
    return colours;
}

void save(const QImage& picture, const fs::path& file) {
    const QImage drawn = picture.convertToFormat(QImage::Format_RGB32);
    const QImage small = drawn.convertToFormat(QImage::Format_Indexed8, mainColours(drawn), Qt::ThresholdDither);
    if (!small.save(QString::fromStdString(file.string()), "PNG", 0))
        throw std::runtime_error("cannot write " + file.string());
}

void letEverythingHappen() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

void drawPages(frmEdit& form, const fs::path& folder) {
    FormWindow window(form);
    window.show();
    letEverythingHappen();
    const auto nodes = viewNodes(form.ViewLevel);
    for (std::size_t position = 0; position < nodes.size(); ++position) {
        form.onNodeClicked(static_cast<int>(position));
        window.refresh();
        letEverythingHappen();
        const std::string frame = (form.*nodes[position].frame).Name();
        std::string name = position < 10 ? "0" : "";
        name.append(std::to_string(position)).append("-").append(frame).append(".png");
        save(window.grab().toImage(), folder / name);
    }
}

void draw(const Wish& wish) {
    const QTemporaryDir own;  // no setting of the user shows, and none changes
    IniStore ini;
    static_cast<void>(ini.open(wish.job));  // without a job the editor would come up with an empty one
    if (viewNodes(wish.view).empty()) throw std::invalid_argument("there is no view " + wish.view);
    SampleFolders files;
    FixedClock clock({Date{std::chrono::year{2026}, std::chrono::March, std::chrono::day{2}}, std::chrono::hours{9}});
    const DateFormat dates("dd.MM.yyyy");
    DesktopPrompts prompts;
    UserSettingsFile settings(fs::path(own.filePath("user.ini").toStdString()));
    Platform platform{ini, files, clock, dates, prompts, settings};

    ComponentValues values;
    values.JobFile = wish.job;
    values.JobDir = fs::path(wish.job).parent_path().string();
    values.Mode = "Edit";
    values.ViewLevel = wish.view;
    values.AppTitle = "kestEdit";
    values.JobExtension = ".job";
    values.INIFile = own.filePath("program.ini").toStdString();
    values.Language = wish.language.string();
    frmEdit form(values, platform);
    form.Load();
    fs::create_directories(wish.folder);
    drawPages(form, wish.folder);
}

}  // namespace

int main(int count, char** arguments) try {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    const std::vector<std::string> words(arguments + 1, arguments + count);
    if (words.size() != 5)
        throw std::invalid_argument("usage: screenshots JOB VIEW LANGUAGE light|dark|contrast FOLDER");
    const Wish wish{words[0], words[1], words[2], words[3], words[4]};
    QApplication::setStyle("fusion");
    OutlineStyle::improveFusion();
    QApplication::setFont(QFont("DejaVu Sans", 10));
    QApplication::setPalette(paletteOf(wish.palette));
    QLocale::setDefault(wish.language.stem() == "german" ? QLocale("de_DE") : QLocale("en_GB"));
    draw(wish);
    return 0;
} catch (const std::exception& reason) {
    std::cerr << "screenshots: " << reason.what() << "\n";
    return 1;
}
