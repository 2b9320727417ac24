// SPDX-License-Identifier: MIT
// Sealing and opening of passwords.

#include <sodium.h>

#include "CommonUtilsBase.h"
#include "NetConnectSettingUILogic.h"

namespace {

// The key exists joined only during one call; it is kept in three pieces, so that it does not stand in the library as
// one text. It keeps a password from the casual reader of a file, not from one who has this program.
class CipherKey {
public:
    CipherKey() {
        m_Pieces[0] = "v7#Rt0b!";
        m_Pieces[1] = "Qx2-mK9z";
        m_Pieces[2] = "Lp4$wE8dH";
        for (int i = 0; i < PieceCount; ++i) m_Joined += m_Pieces[i];
    }
    ~CipherKey() {
        for (int i = 0; i < PieceCount; ++i) wipe(&m_Pieces[i]);
        wipe(&m_Joined);
    }
    const char* text() const { return m_Joined.constData(); }

    static void wipe(QByteArray* bytes) {
        sodium_memzero(bytes->data(), size_t(bytes->size()));
        bytes->clear();
    }

private:
    Q_DISABLE_COPY(CipherKey)

    enum { PieceCount = 3 };
    QByteArray m_Pieces[PieceCount];
    QByteArray m_Joined;
};

typedef void (*Cipher)(const char* data, const char* key, char*& out);

// Runs a text through the host's cipher. The result is null when the cipher gives none.
QString passThrough(Cipher cipher, const QString& text) {
    const CipherKey key;
    QByteArray data = text.toLatin1();
    char* out = nullptr;
    cipher(data.constData(), key.text(), out);
    const QString result = out ? QString::fromLatin1(out) : QString();
    CommonUtilsBase::CryptLocalFree(out);
    CipherKey::wipe(&data);
    return result;
}

bool isBase64Method(const QString& encryptType) { return encryptType == QLatin1String("1"); }

}  // namespace

QString NetConnectSettingUILogic::XorEncrypt(QString password, QString encryptType) {
    if (isBase64Method(encryptType)) return QString::fromLatin1(password.toUtf8().toBase64());
    return passThrough(&CommonUtilsBase::Encrypt, password);
}

QString NetConnectSettingUILogic::XorDecrypt(QString stored, QString encryptType) {
    if (isBase64Method(encryptType)) return QString::fromUtf8(QByteArray::fromBase64(stored.toUtf8()));
    return passThrough(&CommonUtilsBase::Decrypt, stored);
}
