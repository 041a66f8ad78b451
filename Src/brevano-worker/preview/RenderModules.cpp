// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/RenderModules.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <framework/mlt.h>

namespace {

constexpr const char *FolderVariable = "MLT_REPOSITORY";

bool isNeeded(const QString &module)
{
    return module == QLatin1String("libmltcore") || module == QLatin1String("libmltavformat");
}

bool has(mlt_properties services, const char *name)
{
    return mlt_properties_exists(services, name) != 0;
}

} // namespace

RenderModules::RenderModules()
{
    if (qEnvironmentVariableIsEmpty(FolderVariable))
        qputenv(FolderVariable, NX_MLT_MODULES);
    qputenv("MLT_REPOSITORY_DENY", notNeeded(qEnvironmentVariable(FolderVariable)));
    mlt_log_set_level(MLT_LOG_QUIET);
    mlt_repository modules = mlt_factory_init(nullptr);
    // Without the scaler pictures would come in the size of the film, whatever was asked for.
    m_areLoaded = modules && has(mlt_repository_producers(modules), "loader")
                  && has(mlt_repository_producers(modules), "avformat")
                  && has(mlt_repository_filters(modules), "swscale")
                  && has(mlt_repository_filters(modules), "resize");
}

RenderModules::~RenderModules()
{
    mlt_factory_close();
}

QByteArray RenderModules::notNeeded(const QString &folder)
{
    QByteArray names;
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("libmlt*")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (!isNeeded(file.completeBaseName()))
            names += QFile::encodeName(file.completeBaseName()) + ':';
    }
    return names;
}
