// Any file as the language file: every text of the form is one that a user's job could hold, and never longer than
// read.
#include "form/FormModel.h"
#include "i18n/LoadLanguage.h"
#include "tests/fuzz/Fuzzing.h"

using namespace kestedit;
using test::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CodePage page(size > 0 && data[0] % 2 == 0 ? CodePage::western : CodePage::utf8);
    IniStore ini(page);
    ComponentValues values;
    values.Language = test::fileOf({reinterpret_cast<const char*>(data), size});
    const auto reading = ini.readScope();
    FormModel form;
    LoadLanguage(form, modIniHandler(ini, values));

    const auto requireText = [&page](const std::string& text) {
        const auto bytes = page.encode(text);
        require(bytes.has_value(), "a text is UTF-8 that the code page knows");
        require(bytes->size() <= textSize, "a text is cut, and may have one blank behind it");
    };
    require(form.TextCatalogue.size() == 85, "the catalogue has all its entries");
    for (const std::string& text : form.TextCatalogue)
        requireText(text);
    for (const EditorControl* control : form.controls()) {
        requireText(control->Caption);
        for (const std::string& item : control->Items)
            requireText(item);
    }
    return 0;
}
