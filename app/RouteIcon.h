#pragma once

#include "Route.h"

#include <QIcon>

namespace vexel {

// The symbol beside a route's title: the icon theme's, in its symbolic form
// where it has one, else Vexel's own drawing, so that every route has one on
// every desktop. Drawn in the text's colour by the sidebar.
[[nodiscard]] QIcon routeIcon(Route route);

} // namespace vexel
