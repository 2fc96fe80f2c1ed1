#include "desktop/pages/Pages.h"

#include <array>

#include "ui_fraAttributes.h"
#include "ui_fraComment.h"
#include "ui_fraCompression.h"
#include "ui_fraDate.h"
#include "ui_fraExecute.h"
#include "ui_fraExisting.h"
#include "ui_fraExtensions.h"
#include "ui_fraFiles.h"
#include "ui_fraFilesize.h"
#include "ui_fraFolders.h"
#include "ui_fraMode.h"
#include "ui_fraMonitoring.h"
#include "ui_fraPath.h"

namespace kestedit {

namespace {

template <typename Form>
std::unique_ptr<QWidget> build() {
    auto page = std::make_unique<QWidget>();
    Form{}.setupUi(page.get());
    return page;
}

constexpr std::array pages{
    PageForm{"fraComment", build<Ui::fraComment>},
    PageForm{"fraMode", build<Ui::fraMode>},
    PageForm{"fraPath", build<Ui::fraPath>},
    PageForm{"fraMonitoring", build<Ui::fraMonitoring>},
    PageForm{"fraExecute", build<Ui::fraExecute>},
    PageForm{"fraFolders", build<Ui::fraFolders>},
    PageForm{"fraFiles", build<Ui::fraFiles>},
    PageForm{"fraExtensions", build<Ui::fraExtensions>},
    PageForm{"fraFilesize", build<Ui::fraFilesize>},
    PageForm{"fraDate", build<Ui::fraDate>},
    PageForm{"fraAttributes", build<Ui::fraAttributes>},
    PageForm{"fraCompression", build<Ui::fraCompression>},
    PageForm{"fraExisting", build<Ui::fraExisting>},
};

}  // namespace

std::span<const PageForm> pageForms() {
    return pages;
}

}  // namespace kestedit
