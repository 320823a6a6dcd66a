#pragma once

/// Whether anything is there that shows a page. The toolkit itself is content to have started the desktop's
/// opener, which then finds nothing and tells nobody.
bool HasBrowser();
