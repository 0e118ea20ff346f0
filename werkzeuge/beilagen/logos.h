// The logos of the service: a triangle of stations about a point, with lettering, in the colour of a project's mode.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

namespace jorv::beilagen {

struct Logo {
    QString name;  ///< file name without its ending: "torel_kor_gelb"
    QImage bild;   ///< on white, without transparency
};

/// All logos of all regions.
std::vector<Logo> logos();

}  // namespace jorv::beilagen
