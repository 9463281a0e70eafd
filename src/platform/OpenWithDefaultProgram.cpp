// GIO's headers use `signals` as a name, which Qt would otherwise define as a keyword.
#define QT_NO_KEYWORDS

#include "platform/OpenWithDefaultProgram.h"

#include <QFileInfo>
#include <gio/gio.h>

namespace {

int LaunchFailure(const GError* error)
{
    using namespace DefaultProgramResult;
    if (error && error->domain == G_SPAWN_ERROR) {
        switch (error->code) {
        case G_SPAWN_ERROR_NOENT:
            return FileNotFound;
        case G_SPAWN_ERROR_ACCES:
        case G_SPAWN_ERROR_PERM:
            return AccessDenied;
        case G_SPAWN_ERROR_NOEXEC:
            return BadFormat;
        default:
            break;
        }
    }
    if (error && error->domain == G_IO_ERROR && error->code == G_IO_ERROR_NOT_FOUND)
        return FileNotFound;
    return AssociationIncomplete;
}

} // namespace

int OpenWithDefaultProgram(const QString& file)
{
    using namespace DefaultProgramResult;
    if (!QFileInfo(file).isFile())
        return FileNotFound;
    GFile* gfile =
        g_file_new_for_path(QFileInfo(file).absoluteFilePath().toLocal8Bit().constData());
    GError* error = nullptr;
    GAppInfo* app = g_file_query_default_handler(gfile, nullptr, &error);
    int result = NoAssociation;
    if (error) {
        g_error_free(error);
        error = nullptr;
    }
    if (app) {
        GList files{gfile, nullptr, nullptr};
        result = g_app_info_launch(app, &files, nullptr, &error) ? Started : LaunchFailure(error);
        if (error)
            g_error_free(error);
        g_object_unref(app);
    }
    g_object_unref(gfile);
    return result;
}
