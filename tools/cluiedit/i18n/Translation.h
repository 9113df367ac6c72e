#pragma once

class QLocale;

namespace cluiedit {

/// Lets the application speak the first language of \p locale that the editor speaks: widgets that are made from then
/// on have its texts. Where that is English, or none, nothing changes. REQUIRES: an application, which owns what is
/// installed.
void installTranslations(const QLocale& locale);

} // namespace cluiedit
