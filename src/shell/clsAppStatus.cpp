#include "shell/clsAppStatus.h"

clsAppStatus::clsAppStatus(QObject* parent)
    : QObject(parent)
{
}

void clsAppStatus::Set(bool& flag, bool value)
{
    if (flag == value)
        return;
    flag = value;
    emit Update();
}
