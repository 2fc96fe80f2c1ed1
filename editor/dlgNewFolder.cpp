#include "editor/dlgNewFolder.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "editor/Findings.h"
#include "editor/LineBreaks.h"
#include "editor/frmEdit.h"
#include "i18n/Texts.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

constexpr std::size_t shortestName = 2;

/// What the dialog shows and says for one path field. The fixed English text of the source is deliberate; the other two
/// fields use the translated one. Test: tests/golden/folders.golden.
struct Service {
    EditorControl FormModel::*field;
    std::string_view fixedMessage;  ///< empty: the translated message
};

constexpr std::array services{
    Service{&FormModel::dxSource, "Folder already exists."},
    Service{&FormModel::dxDest, ""},
    Service{&FormModel::dxMonitorPath, ""},
};

const Service* serviceOf(int mode) {
    const auto index = static_cast<std::size_t>(mode);
    return mode >= 0 && index < services.size() ? &services[index] : nullptr;
}

}  // namespace

dlgNewFolder::dlgNewFolder(FormModel& form, const modIniHandler& texts, std::string_view title, Platform& platform,
                           JobCharacters& characters)
    : form_(form), texts_(texts), title_(title), platform_(platform), characters_(characters) {}

void dlgNewFolder::Load() {
    if (serviceOf(form_.fMode)) {
        const std::array suffixes{form_.lblSource[0].Caption, form_.lblDest[0].Caption,
                                  textOf(texts_, TextId::newMonitoredFolder)};
        Caption = textOf(texts_, TextId::newFolder) + " - " + suffixes.at(static_cast<std::size_t>(form_.fMode));
    }
    if (const EditorControl* const field = pathField()) {
        folder_ = platform_.files.Absolute(field->text());
        lblFolder.Caption = textOf(texts_, TextId::newFolderIn, {folder_});
    }
    cmdCreate.Caption = textOf(texts_, TextId::createButton);
    cmdCancel.Caption = textOf(texts_, TextId::cancelButton);
    cmdCreate.Enabled = false;
    int index = 0;
    for (EditorControl* control : {&dxTextEdit1, &cmdCreate, &cmdCancel})
        control->TabIndex = index++;

    const std::string colour = platform_.settings.read("Options", "BGColor", "");
    std::int64_t number = 0;
    if (colour.size() < 2) return;
    const char* const last = colour.data() + colour.size();
    const auto [end, error] = std::from_chars(colour.data(), last, number);
    if (error == std::errc{} && end == last && number >= 0 && number <= 0xFFFFFF) BackColour = number;
}

EditorControl* dlgNewFolder::pathField() const {
    const Service* const service = serviceOf(form_.fMode);
    return service ? &(form_.*service->field) : nullptr;
}

void dlgNewFolder::requireOpen() const {
    if (!open_) throw EventRefused("the dialog has closed");
}

void dlgNewFolder::onTextTyped(EditorControl& control, std::string_view text) {
    requireOpen();
    if (&control != &dxTextEdit1) throw EventRefused(control.Name() + " takes no text");
    characters_.require(dxTextEdit1, text, JobCharacters::Entry::typedName);
    dxTextEdit1.EditValue = singleLine(text);
    cmdCreate.Enabled = characterCount(text) >= shortestName;
}

void dlgNewFolder::onCloseBox() {
    requireOpen();
    open_ = false;
}

void dlgNewFolder::onCommand(EditorControl& control) {
    requireOpen();
    if (&control == &cmdCancel) {
        open_ = false;
    } else if (&control == &cmdCreate) {
        if (!cmdCreate.Enabled) throw EventRefused("cmdCreate is disabled");
        create();
    } else {
        throw EventRefused(control.Name() + " is no button");
    }
}

void dlgNewFolder::create() {
    EditorControl* const field = pathField();
    if (!field) return;
    const std::string name = dxTextEdit1.text();
    const std::string path = platform_.files.BuildPath(folder_, name);
    characters_.require(*field, path, JobCharacters::Entry::chosenPath);  // a relative field has become longer
    try {
        if (platform_.files.FolderExists(path)) return reportExisting();
        if (name.find('/') != std::string::npos) {
            throw std::filesystem::filesystem_error("cannot create folder", path,
                                                    std::make_error_code(std::errc::invalid_argument));
        }
        platform_.files.CreateFolder(path);
    } catch (const std::filesystem::filesystem_error& failure) {
        report(path + ": " + failure.code().message());
        return;
    }
    field->EditValue = path;
    field->ToolTipText = path;
    open_ = false;
}

void dlgNewFolder::reportExisting() {
    const std::string_view fixed = serviceOf(form_.fMode)->fixedMessage;
    report(fixed.empty() ? textOf(texts_, TextId::folderExists) : std::string{fixed});
}

void dlgNewFolder::report(std::string_view text) {
    (void)platform_.prompts.showMessage({std::string{title_}, std::string{text}, Buttons::ok, MessageIcon::none});
}

}  // namespace kestedit
