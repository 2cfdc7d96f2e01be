#include "OdArray.h"
#include "RxModule.h"
#include "RxObjectImpl.h"

#include <QtTest>

#include <utility>

namespace {

int alive = 0;

class Shape : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(Shape)
public:
    Shape() { ++alive; }
    ~Shape() override { --alive; }
};

class Circle : public Shape
{
    ODRX_DECLARE_MEMBERS(Circle)
};

class Square : public Shape
{
    ODRX_DECLARE_MEMBERS(Square)
};

ODRX_DEFINE_MEMBERS(Shape, OdRxObject, L"Shape")
ODRX_DEFINE_MEMBERS(Circle, Shape, L"Circle")
ODRX_DEFINE_MEMBERS(Square, Shape, L"Square")

} // namespace

class TestObjects : public QObject
{
    Q_OBJECT

private slots:
    void countsReferences()
    {
        {
            OdSmartPtr<Shape> shape = OdRxObjectImpl<Circle>::createObject();
            QCOMPARE(shape->numRefs(), 1L);
            OdRxObjectPtr other = shape;
            QCOMPARE(shape->numRefs(), 2L);
            other = std::as_const(other); // The object must not be released in between.
            shape = {};
            QCOMPARE(other->numRefs(), 1L);
            QCOMPARE(alive, 1);
            OdRxObject* const detached = other.detach();
            QVERIFY(other.isNull());
            detached->release();
        }
        QCOMPARE(alive, 0);
    }

    void casts()
    {
        const auto circle = OdRxObjectImpl<Circle>::createObject();
        QVERIFY(!Shape::cast(circle.get()).isNull());
        QVERIFY(!OdRxObject::cast(circle.get()).isNull());
        QVERIFY(Square::cast(circle.get()).isNull());
        QVERIFY(Circle::cast(nullptr).isNull());
        QCOMPARE(circle->numRefs(), 1L);
        QCOMPARE(circle->isA(), Circle::desc());
    }

    void namesBothClasses()
    {
        const auto circle = OdRxObjectImpl<Circle>::createObject();
        const auto square = OdRxObjectImpl<Square>::createObject();
        try {
            circle->copyFrom(square.get());
            QFAIL("a square was assigned to a circle");
        } catch (const OdError_NotThatKindOfClass& error) {
            QCOMPARE(error.code(), eNotThatKindOfClass);
            QCOMPARE(error.what(), "Square is no Circle");
        }
        QVERIFY(!circle->isEqualTo(square.get()));
        QVERIFY(circle->isEqualTo(circle.get()));
    }

    void checksIndices()
    {
        OdArray<int> items;
        QVERIFY_EXCEPTION_THROWN(items[0], OdError_InvalidIndex);
        items.append(7);
        items[0] = 8;
        QCOMPARE(items.at(0), 8);
        QVERIFY_EXCEPTION_THROWN(items.at(1), OdError_InvalidIndex);
        QVERIFY_EXCEPTION_THROWN(items[static_cast<unsigned>(-1)], OdError_InvalidIndex);
    }
};

QTEST_APPLESS_MAIN(TestObjects)
#include "tst_objects.moc"
