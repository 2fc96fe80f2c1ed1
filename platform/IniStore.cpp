#include "platform/IniStore.h"

#include <new>
#include <utility>

#include "platform/IniEdit.h"
#include "platform/Posix.h"
#include "platform/RecentFiles.h"

namespace kestedit {

namespace fs = std::filesystem;

namespace {

/// The section's number; nothing for a name that no file of this page can hold.
std::optional<std::size_t> findSection(const IniText& text, std::string_view name) {
    std::string buffer;
    const std::optional<std::string_view> bytes = text.codePage().encode(name, buffer);
    if (!bytes) return std::nullopt;
    return text.findSection(trimName(*bytes));
}

/// The value in the file's own bytes.
std::optional<std::string_view> findValue(const IniText& text, std::string_view section, std::string_view key) {
    std::string buffer;
    const std::optional<std::string_view> name = text.codePage().encode(key, buffer);
    const std::optional<std::size_t> number = findSection(text, section);
    if (!name || !number) return std::nullopt;
    const std::optional<IniText::Range> place = text.findKey(*number, trimName(*name));
    if (!place) return std::nullopt;
    return text.value(*place);
}

}  // namespace

struct IniStore::Impl {
    explicit Impl(CodePage chosen) : page(chosen), files(chosen) {}

    CodePage page;
    RecentFiles files;
    std::error_code lastError;

    SharedText baseOf(const fs::path& file, bool startEmpty, Page reading);
    [[nodiscard]] Edit editOf(const fs::path& file, SharedText base, Page reading) const;
};

struct IniStore::Snapshot::Impl {
    SharedText text;
};

struct IniStore::Edit::Impl {
    fs::path file;
    SharedText base;
    IniEdit edit;
    std::optional<CodePage> told;  // by which the page is recognised when the file is read again
};

IniStore::IniStore(CodePage page) : impl_(std::make_unique<Impl>(page)) {}
IniStore::~IniStore() = default;

const CodePage& IniStore::codePage() const {
    return impl_->page;
}

void IniStore::setCodePage(const fs::path& file, CodePage page) {
    impl_->files.setPage(file, page);
}

std::string IniStore::read(const fs::path& file, std::string_view section, std::string_view key,
                           std::string_view fallback, std::size_t size, Page page) {
    if (size == 0) return {};
    try {
        const SharedText text = impl_->files.get(file, page == Page::recognised);
        const CodePage& own = text->codePage();
        if (const auto value = findValue(*text, section, key)) return own.decode(own.cut(*value, size - 1));
    } catch (const std::system_error&) {
        // A file that cannot be read has no keys.
    }
    fallback = fallback.substr(0, fallback.find_last_not_of(' ') + 1);
    return std::string(impl_->page.cutText(fallback, size - 1));
}

IniStore::ReadScope IniStore::readScope() {
    return ReadScope(*this);
}

IniStore::ReadScope::ReadScope(IniStore& store) : store_(store) {
    store_.impl_->files.enterScope();
}

IniStore::ReadScope::~ReadScope() {
    store_.impl_->files.leaveScope();
}

std::error_code IniStore::write(const fs::path& file, std::string_view section, std::string_view key,
                                std::string_view value, Page page) {
    std::error_code& error = impl_->lastError;
    try {
        Edit change = edit(file, false, page);
        change.set(section, key, value);
        change.stage(StagedFile::Permissions::keep).commit();
        error.clear();
    } catch (const std::system_error& failure) {
        error = failure.code();
    } catch (const UnwritableText& failure) {
        error = failure.code();
    } catch (const std::bad_alloc&) {
        error = std::make_error_code(std::errc::not_enough_memory);
    }
    impl_->files.forget(file);
    return error;
}

std::error_code IniStore::lastError() const {
    return impl_->lastError;
}

IniStore::Snapshot IniStore::open(const fs::path& file, Page page) {
    return Snapshot(std::make_unique<Snapshot::Impl>(Snapshot::Impl{impl_->files.get(file, page == Page::recognised)}));
}

/// The file that an edit begins with.
SharedText IniStore::Impl::baseOf(const fs::path& file, bool startEmpty, Page reading) {
    try {
        if (!startEmpty) return files.getForChange(file, reading == Page::recognised);
    } catch (const std::system_error& failure) {
        if (failure.code() != std::errc::no_such_file_or_directory) throw;
    }
    return std::make_shared<const IniText>(files.pageOf(file));
}

namespace {

/// Every line in UTF-8; throws std::system_error when one holds bytes that are no characters.
SharedText inUtf8(SharedText text, const fs::path& file) {
    if (text->codePage().number() == CodePage::utf8) return text;
    std::optional<IniText> converted = text->inUtf8();
    if (!converted) {
        throw systemFailure("convert line " + std::to_string(text->lineOfNoCharacters().value_or(0)) + " to UTF-8 in",
                            file, std::make_error_code(std::errc::illegal_byte_sequence));
    }
    return std::make_shared<const IniText>(std::move(*converted));
}

}  // namespace

IniStore::Edit IniStore::Impl::editOf(const fs::path& file, SharedText base, Page reading) const {
    std::optional<CodePage> told;
    if (reading == Page::recognised) told = files.pageOf(file);
    IniEdit edit(base);
    return Edit(std::make_unique<Edit::Impl>(Edit::Impl{file, std::move(base), std::move(edit), told}));
}

IniStore::Edit IniStore::edit(const fs::path& file, bool startEmpty, Page page) {
    return impl_->editOf(file, impl_->baseOf(file, startEmpty, page), page);
}

IniStore::Edit IniStore::editAsUtf8(const fs::path& file, bool startEmpty) {
    return impl_->editOf(file, inUtf8(impl_->baseOf(file, startEmpty, Page::recognised), file), Page::recognised);
}

IniStore::Edit IniStore::editAgain(const fs::path& file, const Snapshot& base, bool asUtf8) {
    return impl_->editOf(file, asUtf8 ? inUtf8(base.impl_->text, file) : base.impl_->text, Page::recognised);
}

IniStore::Snapshot::Snapshot(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
IniStore::Snapshot::Snapshot(Snapshot&&) noexcept = default;
IniStore::Snapshot& IniStore::Snapshot::operator=(Snapshot&&) noexcept = default;
IniStore::Snapshot::~Snapshot() = default;

const CodePage& IniStore::Snapshot::codePage() const {
    return impl_->text->codePage();
}

std::optional<std::size_t> IniStore::Snapshot::lineOfNoCharacters() const {
    return impl_->text->lineOfNoCharacters();
}

bool IniStore::Snapshot::hasSection(std::string_view section) const {
    return findSection(*impl_->text, section).has_value();
}

std::optional<std::string> IniStore::Snapshot::value(std::string_view section, std::string_view key) const {
    const std::optional<std::string_view> value = findValue(*impl_->text, section, key);
    if (!value) return std::nullopt;
    return impl_->text->codePage().decode(*value);
}

IniStore::Edit::Edit(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
IniStore::Edit::Edit(Edit&&) noexcept = default;
IniStore::Edit& IniStore::Edit::operator=(Edit&&) noexcept = default;
IniStore::Edit::~Edit() = default;

void IniStore::Edit::set(std::string_view section, std::string_view key, std::string_view value) {
    impl_->edit.set(section, key, value);
}

IniStore::Snapshot IniStore::Edit::base() const {
    return Snapshot(std::make_unique<Snapshot::Impl>(Snapshot::Impl{impl_->base}));
}

bool IniStore::Edit::readsBack() const {
    return !impl_->told || impl_->edit.readsBack(*impl_->told);
}

StagedFile IniStore::Edit::stage(const StagedFile::Access& access) const {
    return stage(access, impl_->file);
}

StagedFile IniStore::Edit::stage(const StagedFile::Access& access, const fs::path& target) const {
    if (!readsBack()) {
        throw systemFailure("keep all characters in", target, std::make_error_code(std::errc::illegal_byte_sequence));
    }
    return {target, std::span<const std::string_view>(impl_->edit.pieces()), access};
}

}  // namespace kestedit
