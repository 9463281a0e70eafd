#pragma once

#include <QMetaMethod>
#include <QStringList>
#include <QTest>
#include <algorithm>

// A test whose functions wait on real time runs as several processes side by side:
// NIGHTREEL_TEST_PART=k/n runs every n-th test function from the k-th (1-based), in their
// order, so that a function added later runs in some part without anyone listing it.
// Functions named on the command line run as asked.
inline int RunTestPart(QObject& test, int argc, char* argv[])
{
    QStringList args;
    for (int i = 0; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    const QStringList part = qEnvironmentVariable("NIGHTREEL_TEST_PART").split(u'/');
    const bool named = std::any_of(args.cbegin() + 1, args.cend(),
                                   [](const QString& a) { return !a.startsWith(u'-'); });
    if (part.size() == 2 && !named) {
        const int k = part[0].toInt(), n = part[1].toInt();
        const QMetaObject* meta = test.metaObject();
        int index = 0;
        for (int m = meta->methodOffset(); m < meta->methodCount(); ++m) {
            const QMetaMethod method = meta->method(m);
            const QString name = QString::fromLatin1(method.name());
            if (method.methodType() != QMetaMethod::Slot ||
                method.access() != QMetaMethod::Private || method.parameterCount() != 0 ||
                name.endsWith("_data") || name.startsWith("init") || name.startsWith("cleanup"))
                continue;
            if (index++ % n == k - 1)
                args << name;
        }
        if (args.size() == argc)
            qFatal("part %d of %d holds no test function", k, n);
    }
    return QTest::qExec(&test, args);
}

// The main function of such a test, with the application class it needs.
#define NIGHTREEL_TEST_PARTS_MAIN(TestObject, Application)                                         \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        Application app(argc, argv);                                                               \
        TestObject test;                                                                           \
        return RunTestPart(test, argc, argv);                                                      \
    }
