#include <OrvaneExportKit/platform/Coder.h>

#include <OrvaneExportKit/platform/Exceptions.h>

namespace platform {

namespace {

[[noreturn]] void refuse(const char *operation)
{
    throw UnrecognisedOperationException(std::string(operation) + ": this coder does not serve the operation");
}

} // namespace

Coder::~Coder() = default;

void Coder::encodeObject(const QVariant & /*object*/, const QString & /*key*/)
{
    refuse("encodeObject");
}

void Coder::encodeFloat(float /*value*/, const QString & /*key*/)
{
    refuse("encodeFloat");
}

void Coder::encodeDouble(double /*value*/, const QString & /*key*/)
{
    refuse("encodeDouble");
}

void Coder::encodeInt64(qint64 /*value*/, const QString & /*key*/)
{
    refuse("encodeInt64");
}

void Coder::encodeBool(bool /*value*/, const QString & /*key*/)
{
    refuse("encodeBool");
}

void Coder::encodeBytes(const QByteArray & /*bytes*/, const QString & /*key*/)
{
    refuse("encodeBytes");
}

bool Coder::containsValueForKey(const QString & /*key*/) const
{
    refuse("containsValueForKey");
}

QVariant Coder::decodeObjectForKey(const QString & /*key*/)
{
    refuse("decodeObjectForKey");
}

float Coder::decodeFloatForKey(const QString & /*key*/)
{
    refuse("decodeFloatForKey");
}

double Coder::decodeDoubleForKey(const QString & /*key*/)
{
    refuse("decodeDoubleForKey");
}

qint64 Coder::decodeInt64ForKey(const QString & /*key*/)
{
    refuse("decodeInt64ForKey");
}

bool Coder::decodeBoolForKey(const QString & /*key*/)
{
    refuse("decodeBoolForKey");
}

QByteArray Coder::decodeBytesForKey(const QString & /*key*/)
{
    refuse("decodeBytesForKey");
}

void Coder::encodeObject(const QVariant & /*object*/)
{
    refuse("encodeObject");
}

QVariant Coder::decodeObject()
{
    refuse("decodeObject");
}

void Coder::encodeValueOfObjCType(const char * /*type*/, const void * /*address*/)
{
    refuse("encodeValueOfObjCType");
}

void Coder::decodeValueOfObjCType(const char * /*type*/, void * /*address*/)
{
    refuse("decodeValueOfObjCType");
}

} // namespace platform
