#include "model/UuidSource.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

const QUuid someId(0x0123abcd, 0x45ef, 0x6789, 0x90, 0xab, 0xcd, 0xef, 0x01, 0x23, 0x45, 0x67);

TEST(UuidText, isWrittenInUpperCaseWithoutBraces)
{
    EXPECT_EQ(uuidText(someId), u"0123ABCD-45EF-6789-90AB-CDEF01234567");
    EXPECT_EQ(uuidText(QUuid()), u"00000000-0000-0000-0000-000000000000");
}

TEST(UuidText, isReadInEitherCase)
{
    EXPECT_EQ(uuidFromText(u"0123ABCD-45EF-6789-90AB-CDEF01234567"), someId);
    EXPECT_EQ(uuidFromText(u"0123abcd-45ef-6789-90ab-cdef01234567"), someId);
    EXPECT_EQ(uuidFromText(u"0123aBcD-45ef-6789-90AB-cdef01234567"), someId);
    EXPECT_EQ(uuidFromText(u"00000000-0000-0000-0000-000000000000"), QUuid());
}

TEST(UuidText, everyOtherFormIsRefused)
{
    for (const QString& text :
        {u""_qs, u"x"_qs, u"{0123ABCD-45EF-6789-90AB-CDEF01234567}"_qs, u"0123ABCD45EF678990ABCDEF01234567"_qs,
            u"0123ABCD-45EF-6789-90AB-CDEF0123456"_qs, u"0123ABCD-45EF-6789-90AB-CDEF012345678"_qs,
            u" 0123ABCD-45EF-6789-90AB-CDEF01234567"_qs, u"0123ABCD-45EF-6789-90AB-CDEF01234567 "_qs,
            u"0123ABCG-45EF-6789-90AB-CDEF01234567"_qs, u"0123ABCD-45EF-678990AB--CDEF01234567"_qs,
            u"0123ABCD_45EF_6789_90AB_CDEF01234567"_qs, u"٠123ABCD-45EF-6789-90AB-CDEF01234567"_qs})
        EXPECT_EQ(uuidFromText(text), std::nullopt) << text.toStdString();
}

} // namespace

} // namespace tarvin
