/// The exported face of the platform's active code page.

#include "vapp/text/ActiveCodePage.h"

#include "text/PlatformText.h"

static_assert(cnUtf8CodePage == vapp_platform::cnCodePageUtf8);

unsigned gGetActiveCodePage() {
    return vapp_platform::ActiveCodePage();
}

unsigned gGetSystemCodePage() {
    return vapp_platform::SystemCodePage();
}

void gSetActiveCodePage(unsigned codePage) {
    vapp_platform::SetActiveCodePage(codePage);
}
