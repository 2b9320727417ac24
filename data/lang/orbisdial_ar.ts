<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>اسم المستخدم وكلمة المرور لـ «%1»:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>اسم المستخدم:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>كلمة المرور:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>لم يتم تحميل إعدادات الاتصال.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>لا يوجد ملف تعريف افتراضي. عيّن واحدًا في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>لا يوجد ملف تعريف باسم «%1».</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>تم إلغاء الاتصال.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>المودم ليس جاهزًا بعد. انتظر قليلًا ثم حاول مجددًا؛ وإن لم يفد ذلك فافصله ثم أعد توصيله.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>الشبكة لا تجيب (لا توجد إشارة حاملة). حاول مجددًا حيث يكون الاستقبال أفضل.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>رفضت الشبكة اسم المستخدم أو كلمة المرور في «%1». صححهما في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <translation>لا يوجد مودم. صِل مودمًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <translation>المودم قيد الاستخدام من قبل %1. أنهِ ذلك الاتصال أولًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <translation>لا تملك البطاقة خدمة بيانات لـ «%1». تحقق من اسم نقطة الوصول (APN) أو اسأل المشغّل.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <translation>رفضت الشبكة «%1» دون ذكر السبب. تحقق من اسم المستخدم وكلمة المرور واسم نقطة الوصول (APN).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <translation>فُقد الاتصال. اتصل مجددًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>تعذّر بدء الاتصال على هذا الحاسوب. حاول مجددًا؛ فقد تفيد التفاصيل بالمزيد.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <translation>الرقم مشغول. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <translation>لا توجد نغمة اتصال. تحقق من هوائي المودم وبطاقته.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <translation>لم تجب الشبكة في الوقت المناسب. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <translation>ترفض الشبكة اسم نقطة الوصول (APN) في «%1». صححه في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <translation>لم يُعثر على شبكة. حاول مجددًا حيث يكون الاستقبال أفضل.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <translation>لا تقبل الشبكة هذه البطاقة. اسأل المشغّل هل هي مفعّلة.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <translation>لا توجد بطاقة SIM في المودم. أدخل واحدة.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <translation>بطاقة SIM مقفلة. أدخل رمز PIN الخاص بها.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <translation>لا يقبل المودم بطاقة SIM هذه. استخدم بطاقة من مشغّل المودم.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <translation>رمز PIN خاطئ. أدخل الرمز الصحيح.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <translation>أُزيل المودم أو توقف عن العمل. أعد توصيله.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <translation>خدمة أجهزة المودم (ModemManager) لا تعمل أو لا تستجيب. أعد تشغيلها أو اسأل المسؤول.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>خدمة الاتصالات (NetworkManager) لا تعمل أو لا تستجيب. أعد تشغيلها أو اسأل المسؤول.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>انتهى الاتصال لأن الحاسوب دخل في وضع السكون. اتصل مجددًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>أخذ برنامج آخر المودم لاتصاله الخاص. أنهِ ذلك الاتصال ثم اتصل مجددًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>تطلب الشبكة اسم مستخدم وكلمة مرور. أدخلهما لـ «%1» في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>أُنهي الاتصال من خارج هذا البرنامج. اتصل مجددًا إن احتجت إليه.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>أُنهي الاتصال في برنامج آخر من OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <translation>المودم عالق في مكالمة سابقة. افصله ثم صِله من جديد.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <translation>لا يُسمح لك بالاتصال على هذا الحاسوب. اطلب الإذن من المسؤول.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <translation>فشل الاتصال باستخدام «%1». تذكر التفاصيل ما هو معروف.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <translation>تعذّر إنهاء الاتصال. حاول مجددًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>المودم أو الشبكة لا تقبل مثل هذه الأوامر.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>رفضت الشبكة الأمر أو أنهت الجلسة.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <translation>لم تجب الشبكة.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <translation>أُلغيت الجلسة.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <translation>لا يُسمح لك بإرسال الأوامر على هذا الحاسوب. اطلب الإذن من المسؤول.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <translation>فشل الأمر.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <translation>اتصل بالرقم %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <translation>أرسل الرسالة النصية «%2» إلى %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <translation>أرسل رسالة نصية فارغة إلى %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <translation>اسم ملف التعريف «%1» أطول من أن يُستخدم للاتصال. اختصره.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <translation>لا يصلح رقم الاتصال في «%1». صححه في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <translation>لا يصلح اسم نقطة الوصول (APN) في «%1»: 64 حرفًا لاتينيًا أو رقمًا أو نقطة أو شرطة أو شرطة سفلية على الأكثر. صححه في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <translation>عنوان IP في «%1» غير صالح. صححه في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <translation>عنوان خادم DNS في «%1» غير صالح. صححه في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <translation>عنوان خادم DNS البديل في «%1» غير صالح. صححه في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <translation>لا يمكن إرسال اسم المستخدم في «%1»: 255 بايت على الأكثر. اختصره.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <translation>لا يمكن إرسال كلمة المرور في «%1»: 255 بايت على الأكثر. اختصرها.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <translation>تجهيز المودم</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <translation>البحث عن الشبكة، وقد يستغرق دقيقة</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <translation>الاتصال بالشبكة</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <translation>طلب عنوان</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <translation>قيد الاستخدام من قبل %1</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <translation>لا أثر لرقم الاتصال: يطلب المودم رقم الشبكة نفسها.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <translation>لا أثر لعنوان IP الثابت: الشبكة هي التي تعيّن العنوان.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <translation>لا أثر لخوادم WINS.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <translation>تعذّر الحصول على عنوان IP الثابت؛ عيّنت الشبكة %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <translation>استُهلك 80 بالمئة من حجم بيانات هذا الشهر.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <translation>استُهلك حجم بيانات هذا الشهر كله.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <translation>الاتصال التلقائي ينتظر حتى تتصل بنفسك.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <translation>الاتصال التلقائي ينتظر المودم.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <translation>الاتصال التلقائي ينتظر شبكة.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <translation>لا يجري الاتصال التلقائي أثناء التجوال.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <translation>الاتصال التلقائي ينتظر حتى يخلو المودم.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <translation>سيحاول الاتصال التلقائي مجددًا قريبًا.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <translation>توقف الاتصال التلقائي لأن الشبكة رفضت «%1». صحح اسم المستخدم وكلمة المرور، أو اتصل بنفسك.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <translation>توقف الاتصال التلقائي: ستفشل المحاولة التالية بالطريقة نفسها.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <translation>لا يمكن للاتصال التلقائي استخدام «%1» لأنه يسأل عن اسم المستخدم وكلمة المرور.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BYTES</source>
        <translation>%1 بايت</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBYTES</source>
        <translation>%1 ك.ب</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABYTES</source>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABYTES</source>
        <translation>%1 غ.ب</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BITS_PER_SECOND</source>
        <translation>%1 بت/ث</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBITS_PER_SECOND</source>
        <translation>%1 كيلوبت/ث</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABITS_PER_SECOND</source>
        <translation>%1 ميغابت/ث</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABITS_PER_SECOND</source>
        <translation>%1 غيغابت/ث</translation>
    </message>
</context>
<context>
    <name>NetConnectPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>الطلب الهاتفي</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>ملف تعريف الاتصال(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>المصادقة</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>بروتوكول المصادقة</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>نقطة الوصول(&amp;A):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>رقم الاتصال(&amp;B):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>اسم المستخدم(&amp;M):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>كلمة المرور(&amp;W):</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>ديناميكي</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>ثابت</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>السؤال عند الاتصال(&amp;K)</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_CHAP</source>
        <translation>C&amp;HAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_PAP</source>
        <translation>&amp;PAP</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NEW</source>
        <translation>جديد(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>حذف(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>تحرير(&amp;E)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>حفظ(&amp;S)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>تراجع(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>تعيين كافتراضي(&amp;F)</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>استيراد(&amp;I)…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>تصدير(&amp;X)…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>متقدم(&amp;V)…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(افتراضي)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>إعدادات الاتصال</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>نعم(&amp;Y)</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>لا(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>الرجاء إدخال اسم ملف التعريف.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>يوجد بالفعل ملف تعريف بهذا الاسم. الرجاء اختيار اسم آخر.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>يجب ألا يحتوي اسم ملف التعريف على أي من هذه الأحرف: ⁦</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>الرجاء إدخال رقم الاتصال، مثل ⁦*99#⁩.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>اسم نقطة الوصول غير صالح. يمكن أن يحتوي على أحرف وأرقام ونقاط وواصلات، ويجب أن يبدأ وينتهي بحرف أو رقم.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>هل تريد حذف ملف التعريف هذا؟</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>يحتوي ملف التعريف على تغييرات غير محفوظة. هل تريد حفظها؟</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>موجود بالفعل. هل تريد استبدال ملف التعريف هذا؟</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>تطبيق الإجابة نفسها على ملفات التعريف المتبقية</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>عنوان IP غير صالح. الرجاء إدخال عنوان مثل 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>عنوان خادم DNS غير صالح. الرجاء إدخال عنوان مثل 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>عنوان خادم WINS غير صالح. الرجاء إدخال عنوان مثل 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>استيراد ملفات التعريف</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>تصدير ملفات التعريف</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>ملفات تعريف الطلب الهاتفي</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>استعراض(&amp;B)…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>إعدادات متقدمة</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>خوادم DNS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>خوادم WINS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>عنوان IP(&amp;I):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>الأساسي(&amp;R):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>الثانوي(&amp;S):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>الأساسي(&amp;M):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>الثانوي(&amp;E):</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>ملف تعريف جديد</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>ملف التعريف هذا للقراءة فقط. لتغييره، اضغط «جديد» وأدخل قيمه باسم آخر.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>ملف التعريف هذا معدّ مسبقًا. لتغييره، أغلق الإعدادات واضغط Ctrl+N في النافذة الرئيسية: يُنشأ ملف تعريف خاص بك بالقيم نفسها.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>ملف التعريف هذا متصل. اقطع الاتصال أولًا.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>لا يمكن تغيير ملف التعريف الافتراضي أثناء الاتصال. اقطع الاتصال أولًا.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>لا يوجد ملف تعريف بعد. اضغط «جديد» لإنشاء واحد.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>يجري تحرير ملف تعريف. اضغط «حفظ» أو «تراجع» أولًا.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>لا يجري تحرير أي ملف تعريف. اضغط «جديد» أو «تحرير» أولًا.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>ملف التعريف هذا للقراءة فقط.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>ملف التعريف هذا معدّ مسبقًا.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>ملف التعريف هذا متصل.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>تعذّر حفظ ملف التعريف. لم يُفقد شيء: عالج المشكلة ثم اضغط «حفظ» مرة أخرى.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>بعض الأحرف لا يمكن حفظها: استخدم أحرف أوروبا الغربية فقط.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>اسم ملف التعريف</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>ملفات التعريف المتاحة للاختيار</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>لا يمكن أن يحتوي اسم الملف على «⁦*⁩». الرجاء إدخال اسم آخر.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>موجود بالفعل. سيتم الاحتفاظ بملفات التعريف الموجودة فيه واستبدال ما يحمل الاسم نفسه. هل تريد التصدير إليه؟</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <translation>لا تسمح التهيئة بالاستيراد.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <translation>الملف غير موجود.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <translation>لا يحتوي الملف على ملفات تعريف.</translation>
    </message>
</context>
<context>
    <name>OrbisDial</name>
    <message>
        <source>IDS_HOST_TITLE</source>
        <translation>OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_TITLE_SIMULATED</source>
        <translation>OrbisDial (مودم محاكى)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>صفحات الإعدادات</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>لا يوجد ملف تعريف افتراضي</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>قطع الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>متصل باستخدام %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>جارٍ قطع الاتصال…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>لم يتم تحميل ملحق الطلب الهاتفي</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>بطاقة SIM %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>بطاقة SIM %1: ملف التعريف المعدّ مسبقًا «%2»، اختير حسب بادئتها %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <translation>بطاقة SIM %1: ملف التعريف المعدّ مسبقًا «%2»، اختير حسب بادئتها %3 واسم مشغّلها %4</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>بطاقة SIM %1: البادئة %2 معروفة، لكن لم يُقترح أي من ملفات تعريفها كافتراضي</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>بطاقة SIM %1: لا يطابقها أي ملف تعريف معدّ مسبقًا</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>مشكلة في الحفظ: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>لا يمكن استخدام %1: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>تعذّر التحميل (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>ليس ملحقًا لهذا البرنامج</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>يوجد ملحق آخر بالمعرّف نفسه</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>تعذّر بدء التشغيل</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>لا يمكن استخدام المودم: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>اللغة:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>تثبيت ملف التعريف الافتراضي: إخفاء الزر «تعيين كافتراضي»</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>تعذّر حفظ الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>ملف التعريف:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>ملف التعريف المستخدم للاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>اختر ملف تعريف أو اكتب جزءًا من اسمه</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (افتراضي)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>ملفات التعريف الخاصة بي</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>ملفات التعريف المعدّة مسبقًا لبطاقة SIM هذه</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>ملفات التعريف المعدّة…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>ملفات التعريف المعدّة مسبقًا لمشغّلي العالم</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>بحث:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>البلد أو المشغّل أو الباقة أو APN أو رمز الشبكة</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>البلدان والمشغّلون والباقات</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>البلد، المشغّل، الباقة</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <translation>عدد الباقات: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>لم يُعثر على شيء. جرّب كلمات أقل أو تهجئة أخرى.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>ملفات تعريف أخرى معدّة مسبقًا</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <translation>%1 (مسبق الدفع)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <translation>%1 (باشتراك)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>اختر باقة لعرض قيمها.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>استخدام كملف تعريف جديد…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>البلد:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>المشغّل:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>الباقة:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>تحدّده الشبكة</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>رقم الاتصال:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>اسم المستخدم:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>يُطلب عند الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>كلمة المرور:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>المصادقة:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>رموز الشبكة:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <translation>جديد من هذا…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>ملف تعريف جديد</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <translation>ملف تعريف خاص بك بقيم «%1». يمكنك تغييرها في الإعدادات.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>تعيين كافتراضي</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>لا يمكن تغيير ملف التعريف الافتراضي أثناء الاتصال.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <translation>اختيار المشغّل…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>لا يوجد ملف تعريف معدّ مسبقًا معروف لبطاقة SIM هذه. اختر المشغّل أو أي ملف تعريف أدناه.</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>إلغاء القفل…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <translation>الرصيد…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>الاتصال(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>مساعدة(&amp;H)</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>الدليل</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>حول OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>حول OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>مدير اتصال لأجهزة مودم النطاق العريض المحمول.

رخصة MIT. يستخدم Qt %1 (LGPL) وlibsodium (ISC) وICU (Unicode) وقاعدة البيانات العامة mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>الاتصال باستخدام</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>إظهار النافذة</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>الجزء المسؤول عن الاتصال في البرنامج مفقود. أعد تثبيت OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>جارٍ البحث عن مودم…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>سيستغرق ذلك لحظة.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>خدمة المودم غير متاحة</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>يعثر OrbisDial على أجهزة المودم عبر ModemManager، وهو لا يعمل أو لا يستجيب. ثبّته أو أعد تشغيله.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>خدمة الاتصالات غير متاحة</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>يتصل OrbisDial عبر NetworkManager، وهو لا يستجيب. أعد تشغيله أو اسأل المسؤول.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>لا يوجد مودم</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>صِل مودمًا. قد يستغرق العثور على بعضها نصف دقيقة.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>لا توجد بطاقة SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>افصل المودم وأدخل بطاقة SIM ثم أعد توصيله.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>بطاقة SIM مقفلة</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>تطلب رمز PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>أُدخل رمز PIN خطأً مرات كثيرة. تطلب البطاقة الآن رمز PUK الذي أعطاك إياه المشغّل.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>لا يفتح هذا القفل رمز PIN ولا رمز PUK. اسأل المشغّل أو بائع المودم.</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>يجري تشغيل المودم…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>سيكون جاهزًا بعد لحظة.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>المودم غير جاهز</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>افصله ثم أعد توصيله.</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>غير مسجّل في أي شبكة</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>جارٍ البحث عن شبكة…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>ترفض الشبكة بطاقة SIM هذه. اسأل المشغّل.</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>الإشارة %1%</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>تجوال</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>جارٍ الاتصال باستخدام %1…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>تعذّر الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>تعذّر الاتصال باستخدام %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>انقطع الاتصال باستخدام %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <translation>أُنهي الاتصال باستخدام %1</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>النقل خلال آخر ثلاث دقائق</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>هذا الشهر: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>هذا الشهر: %1 من %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>إلغاء قفل بطاقة SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>رصيد بطاقة SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <translation>يخبر المشغّل %1 برصيد البطاقة مسبقة الدفع جوابًا عن الأمر %2. لا يُرسل شيء قبل أن تضغط «استعلام».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <translation>يخبر المشغّل %1 بالرصيد بهذه الطريقة التي عليك اتباعها بنفسك:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>لا يُعرف هنا كيف يخبر مشغّلك بالرصيد. إن كنت تعرف أمره فاكتبه؛ لا يُرسل شيء قبل أن تضغط «استعلام».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>الأمر:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <translation>استعلام</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <translation>ردك:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>في انتظار الشبكة…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>لا يوجد مودم جاهز يستطيع إرسال الأوامر إلى الشبكة.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>تطلب بطاقة SIM رمز PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>أُدخل رمز PIN خطأً مرات كثيرة. أدخل رمز PUK الذي أعطاك إياه المشغّل واختر رمز PIN جديدًا.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN</source>
        <translation>رمز PIN:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK</source>
        <translation>رمز PUK:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NEW_PIN</source>
        <translation>رمز PIN الجديد:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>أعد رمز PIN الجديد:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>إلغاء القفل</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>المحاولات المتبقية: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>عدد المحاولات المتبقية غير معروف.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>إذا كانت هذه المحاولة خاطئة فستطلب البطاقة رمز PUK.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>إذا كانت هذه المحاولة خاطئة فستتعطل البطاقة نهائيًا.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>استخدام المحاولة الأخيرة</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>تتحقق البطاقة منه…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>الرمز خاطئ.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>لا يُسمح لك بإلغاء قفل البطاقة. اسأل مسؤول هذا الحاسوب.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>تعذّر إلغاء قفل البطاقة. %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>إظهار رسائل حول الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>إغلاق النافذة يُبقي البرنامج في منطقة الإعلام</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>البقاء متصلًا بعد إنهاء البرنامج</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>الحد الشهري لبيانات بطاقة SIM هذه:</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>بلا حد</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>أنت متصل. سينتهي الاتصال بإنهاء البرنامج.</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>أنت متصل وستبقى متصلًا بعد إنهاء البرنامج.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>مودم محاكى</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>رقم IMSI:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>لا توجد بطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>بطاقة متعددة الأوضاع</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>وضع البطاقة:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>نوع المنتج:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>وضع النظام:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>الوضع الفرعي:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>نتيجة الطلب:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>تم الرد</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>لا توجد إشارة حاملة</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>فشل المصادقة</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>لا توجد إشارة</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>تهيئة</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>تغيير البطاقة</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>الإعداد:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>قطع الاتصال</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <translation>لم يُستورد شيء من %1.
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <translation>أنهِ أولًا ما هو مفتوح، ثم افتح الملف مجددًا.</translation>
    </message>
</context>
<context>
    <name>Programs</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (chosen by the user)</source>
        <translation>%1 (اختاره المستخدم)</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1 (مقترح من التهيئة)</translation>
    </message>
    <message>
        <source>%1 (simulated modem)</source>
        <translation>%1 (مودم محاكى)</translation>
    </message>
    <message>
        <source>%1 Put -- before a name that begins with a hyphen.</source>
        <translation>%1 ضع -- قبل الاسم الذي يبدأ بواصلة.</translation>
    </message>
    <message>
        <source>%1 bytes received, %2 sent</source>
        <translation>استُلم %1 بايت وأُرسل %2</translation>
    </message>
    <message>
        <source>%1 holds no profile %2</source>
        <translation>لا يحتوي %1 على ملف التعريف %2</translation>
    </message>
    <message>
        <source>%1 is a preset; make one of your own from it: %2</source>
        <translation>%1 ملف تعريف معدّ مسبقًا؛ أنشئ منه ملف تعريف خاصًا بك: %2</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 متصل؛ انظر orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is being connected; see orbisctl disconnect</source>
        <translation>يجري توصيل %1؛ انظر orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is no field to set; fields: %2</source>
        <translation>%1 ليس حقلًا يمكن تعيينه؛ الحقول: %2</translation>
    </message>
    <message>
        <source>%1 is no limit; say a volume such as 500MB or 1.5GB</source>
        <translation>%1 ليس حدًا؛ حدّد حجمًا مثل 500MB أو 1.5GB</translation>
    </message>
    <message>
        <source>%1 is read-only; make one of your own from it: %2</source>
        <translation>%1 للقراءة فقط؛ أنشئ منه ملف تعريف خاصًا بك: %2</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>قد يعني %1 أكثر من أمر: %2</translation>
    </message>
    <message>
        <source>%1 names a modem, and counts before the choice</source>
        <translation>يحدّد %1 مودمًا، وهو مقدَّم على هذا الاختيار</translation>
    </message>
    <message>
        <source>%1 of %2 were no IMSI, which has 5 to 15 digits</source>
        <translation>ليست أرقام IMSI (من 5 إلى 15 رقمًا): %1 من %2</translation>
    </message>
    <message>
        <source>%1 percent of the limit of %2</source>
        <translation>%1 بالمئة من الحد البالغ %2</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1، %2:</translation>
    </message>
    <message>
        <source>%1, at most %2 characters</source>
        <translation>%1، %2 حرفًا على الأكثر</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 received, %3 sent, %4 together</source>
        <translation>%1: استُلم %2، وأُرسل %3، والمجموع %4</translation>
    </message>
    <message>
        <source>%1: can't be written: %2</source>
        <translation>%1: تتعذّر الكتابة: %2</translation>
    </message>
    <message>
        <source>%1: does not exist</source>
        <translation>%1: غير موجود</translation>
    </message>
    <message>
        <source>%1: holds no template for new profiles; see --like</source>
        <translation>%1: لا يحتوي على قالب لملفات التعريف الجديدة؛ انظر --like</translation>
    </message>
    <message>
        <source>%1: is no profile file; --force replaces it</source>
        <translation>%1: ليس ملفًا لملفات التعريف؛ يستبدله --force</translation>
    </message>
    <message>
        <source>%1: is the user's profile file itself</source>
        <translation>%1: هو ملف المستخدم نفسه الذي تُحفظ فيه ملفات التعريف</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: السطر %2: %3</translation>
    </message>
    <message>
        <source>%1: no prefix matches; the configuration's own presets</source>
        <translation>%1: لا بادئة مطابقة؛ ملفات التعريف المعدّة مسبقًا في التهيئة نفسها</translation>
    </message>
    <message>
        <source>%1: not UTF-8 on standard input</source>
        <translation>%1: ليس بترميز UTF-8 في الدخل القياسي</translation>
    </message>
    <message>
        <source>%1: not an IMSI</source>
        <translation>%1: ليس رقم IMSI</translation>
    </message>
    <message>
        <source>%1: prefix %2</source>
        <translation>%1: البادئة %2</translation>
    </message>
    <message>
        <source>%1: standard input holds none</source>
        <translation>%1: غير موجود في الدخل القياسي</translation>
    </message>
    <message>
        <source>%1; give a new one with password=</source>
        <translation>%1؛ أعطِ كلمة مرور جديدة باستخدام password=</translation>
    </message>
    <message>
        <source>%1; it ends with this program, see --hold</source>
        <translation>%1؛ ينتهي بانتهاء هذا البرنامج، انظر --hold</translation>
    </message>
    <message>
        <source>%1; then the card asks for its PUK; --last takes it</source>
        <translation>%1؛ ثم تطلب البطاقة رمز PUK؛ يستخدمها --last</translation>
    </message>
    <message>
        <source>%1; then the card is lost; --last takes it</source>
        <translation>%1؛ ثم تتعطل البطاقة نهائيًا؛ يستخدمها --last</translation>
    </message>
    <message>
        <source>%1; waits, since the network refused user name or password</source>
        <translation>%1؛ في الانتظار، لأن الشبكة رفضت اسم المستخدم أو كلمة المرور</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(مخفية)</translation>
    </message>
    <message>
        <source>--clear takes no modem</source>
        <translation>لا يأخذ --clear مودمًا</translation>
    </message>
    <message>
        <source>--json goes with neither --terse nor --fields</source>
        <translation>لا يُستخدم --json مع --terse ولا مع --fields</translation>
    </message>
    <message>
        <source>--roaming goes with on</source>
        <translation>يُستخدم --roaming مع on فقط</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>يأخذ --timeout عدد ثوانٍ من 1 إلى 86400</translation>
    </message>
    <message>
        <source>A profile file to import; the window asks first.</source>
        <translation>ملف التعريفات المراد استيراده؛ تسأل النافذة أولًا.</translation>
    </message>
    <message>
        <source>Add a profile. password=- reads the password from standard input.</source>
        <translation>إضافة ملف تعريف. يقرأ password=- كلمة المرور من الدخل القياسي.</translation>
    </message>
    <message>
        <source>All profiles of one's own.</source>
        <translation>كل ملفات التعريف الخاصة.</translation>
    </message>
    <message>
        <source>Answer (none ends the session): </source>
        <translation>الرد (الفارغ ينهي الجلسة): </translation>
    </message>
    <message>
        <source>Ask the network for a prepaid card's balance.</source>
        <translation>سؤال الشبكة عن رصيد بطاقة مسبقة الدفع.</translation>
    </message>
    <message>
        <source>Change fields of a profile; name=NEW renames it.</source>
        <translation>تغيير حقول ملف تعريف؛ name=جديد يعيد تسميته.</translation>
    </message>
    <message>
        <source>Command-line client of the OrbisDial connection manager.</source>
        <translation>عميل سطر الأوامر لمدير الاتصال OrbisDial.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>الأوامر:</translation>
    </message>
    <message>
        <source>Connect with a profile, or with the default.</source>
        <translation>الاتصال باستخدام ملف تعريف، أو باستخدام الافتراضي.</translation>
    </message>
    <message>
        <source>Connection manager for mobile-broadband modems.</source>
        <translation>مدير الاتصال لمودمات النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>Delete profiles: all of them, or none.</source>
        <translation>حذف ملفات تعريف: كلها أو لا شيء منها.</translation>
    </message>
    <message>
        <source>End the connection, or give it up.</source>
        <translation>إنهاء الاتصال، أو التخلي عنه.</translation>
    </message>
    <message>
        <source>Export profiles into a file; others that it holds stay.</source>
        <translation>تصدير ملفات تعريف إلى ملف؛ ويبقى ما فيه غيرها.</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>الحقول:</translation>
    </message>
    <message>
        <source>GID1</source>
        <translation>GID1</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Import all profiles of a file, or the named ones.</source>
        <translation>استيراد كل ملفات التعريف من ملف، أو المسماة منها.</translation>
    </message>
    <message>
        <source>Keep the user's profiles in this folder.</source>
        <translation>حفظ ملفات تعريف المستخدم في هذا المجلد.</translation>
    </message>
    <message>
        <source>List all profiles; * marks the default.</source>
        <translation>سرد كل ملفات التعريف؛ تشير * إلى الافتراضي.</translation>
    </message>
    <message>
        <source>List the modems; * marks the one in use.</source>
        <translation>سرد أجهزة المودم؛ تشير * إلى المستخدم منها.</translation>
    </message>
    <message>
        <source>New PIN again: </source>
        <translation>أعد رمز PIN الجديد: </translation>
    </message>
    <message>
        <source>New PIN: </source>
        <translation>رمز PIN الجديد: </translation>
    </message>
    <message>
        <source>Open the settings at this page: its title or its plug-in's name.</source>
        <translation>فتح الإعدادات عند هذه الصفحة: عنوانها أو اسم ملحقها.</translation>
    </message>
    <message>
        <source>PIN (%1): </source>
        <translation>رمز PIN (%1): </translation>
    </message>
    <message>
        <source>PUK (%1): </source>
        <translation>رمز PUK (%1): </translation>
    </message>
    <message>
        <source>Password [as stored]: </source>
        <translation>كلمة المرور [المحفوظة]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>كلمة المرور: </translation>
    </message>
    <message>
        <source>Replace a file even if it holds something else than profiles.</source>
        <translation>استبدال الملف حتى لو احتوى على غير ملفات التعريف.</translation>
    </message>
    <message>
        <source>Replace profiles whose names exist; without it they are skipped.</source>
        <translation>استبدال ملفات التعريف الموجودة أسماؤها؛ وإلا تُتخطى.</translation>
    </message>
    <message>
        <source>Save all profiles of one's own, and the chosen default, in a file.</source>
        <translation>حفظ كل ملفات التعريف الخاصة والافتراضي المختار في ملف.</translation>
    </message>
    <message>
        <source>See orbisctl COMMAND --help.</source>
        <translation>انظر orbisctl COMMAND --help.</translation>
    </message>
    <message>
        <source>Send a command such as *100# to the network and show its answer.</source>
        <translation>إرسال أمر مثل *100# إلى الشبكة وعرض جوابها.</translation>
    </message>
    <message>
        <source>Show a value of the function configuration, or all.</source>
        <translation>عرض قيمة من تهيئة الوظائف، أو كلها.</translation>
    </message>
    <message>
        <source>Show each month that is kept.</source>
        <translation>عرض كل شهر محفوظ.</translation>
    </message>
    <message>
        <source>Show the connection.</source>
        <translation>عرض الاتصال.</translation>
    </message>
    <message>
        <source>Show the default profile, or choose it.</source>
        <translation>عرض ملف التعريف الافتراضي أو اختياره.</translation>
    </message>
    <message>
        <source>Show the fields of profiles.</source>
        <translation>عرض حقول ملفات التعريف.</translation>
    </message>
    <message>
        <source>Show the modem in use, or choose one by its key, IMEI or port.</source>
        <translation>عرض المودم المستخدم، أو اختيار مودم بمفتاحه أو IMEI أو منفذه.</translation>
    </message>
    <message>
        <source>Show the password too.</source>
        <translation>إظهار كلمة المرور أيضًا.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message>
        <source>Show this help, or that of a command.</source>
        <translation>عرض هذه المساعدة أو مساعدة أمر.</translation>
    </message>
    <message>
        <source>Show what the SIM card moved this month, or set its limit.</source>
        <translation>عرض ما نقلته بطاقة SIM هذا الشهر، أو تحديد حدها.</translation>
    </message>
    <message>
        <source>Show what the modem and its SIM card report, and the connection.</source>
        <translation>عرض ما يفيد به المودم وبطاقة SIM، والاتصال.</translation>
    </message>
    <message>
        <source>Speak this language, e.g. "de" or "zh_CN".</source>
        <translation>استخدام هذه اللغة، مثل «de» أو «zh_CN».</translation>
    </message>
    <message>
        <source>Spend the last attempt, too.</source>
        <translation>استخدام المحاولة الأخيرة أيضًا.</translation>
    </message>
    <message>
        <source>Start from this profile instead of the template for new ones.</source>
        <translation>البدء من ملف التعريف هذا بدلًا من قالب الملفات الجديدة.</translation>
    </message>
    <message>
        <source>Start in the desktop's tray, without a window, where there is one.</source>
        <translation>البدء في منطقة الإعلام بلا نافذة، إن وُجدت.</translation>
    </message>
    <message>
        <source>Stay, and hang up on Ctrl-C.</source>
        <translation>البقاء، وقطع الاتصال عند الضغط على Ctrl-C.</translation>
    </message>
    <message>
        <source>Stay, and show each change.</source>
        <translation>البقاء، وإظهار كل تغيير.</translation>
    </message>
    <message>
        <source>Take profiles and default from a backup; those of other names stay.</source>
        <translation>استعادة ملفات التعريف والافتراضي من نسخة احتياطية؛ وتبقى الأسماء الأخرى.</translation>
    </message>
    <message>
        <source>Take the choice back.</source>
        <translation>إلغاء الاختيار.</translation>
    </message>
    <message>
        <source>Take the limit away.</source>
        <translation>إزالة الحد.</translation>
    </message>
    <message>
        <source>Tell what is wrong with the shipped files, or with these.</source>
        <translation>ذكر الأخطاء في الملفات المرفقة أو في هذه الملفات.</translation>
    </message>
    <message>
        <source>Tell which presets SIM cards select; - reads IMSIs from standard input.</source>
        <translation>ذكر ملفات التعريف المعدّة مسبقًا التي تختارها بطاقات SIM؛ ويقرأ - أرقام IMSI من الدخل القياسي.</translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>هذا مودم محاكى.</translation>
    </message>
    <message>
        <source>Unlock the SIM card with its PUK and set a new PIN, a line each.</source>
        <translation>إلغاء قفل بطاقة SIM برمز PUK وتعيين رمز PIN جديد، كل منهما في سطر.</translation>
    </message>
    <message>
        <source>Unlock the SIM card; the PIN is asked for, or read from standard input.</source>
        <translation>إلغاء قفل بطاقة SIM؛ يُطلب رمز PIN أو يُقرأ من الدخل القياسي.</translation>
    </message>
    <message>
        <source>Use this modem: %1.</source>
        <translation>استخدام هذا المودم: %1.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>اسم المستخدم [%1]: </translation>
    </message>
    <message>
        <source>Wait no longer than so many seconds.</source>
        <translation>عدم الانتظار أكثر من هذا العدد من الثواني.</translation>
    </message>
    <message>
        <source>Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB.</source>
        <translation>التحذير عند 80 و100 بالمئة من هذا الحجم شهريًا، مثل 500MB أو 1.5GB.</translation>
    </message>
    <message>
        <source>What the SIM cards call their operator.</source>
        <translation>الاسم الذي تطلقه بطاقات SIM على مشغّلها.</translation>
    </message>
    <message>
        <source>Whether the window connects with a profile by itself.</source>
        <translation>هل تتصل النافذة تلقائيًا باستخدام ملف تعريف.</translation>
    </message>
    <message>
        <source>While roaming, too.</source>
        <translation>أثناء التجوال أيضًا.</translation>
    </message>
    <message>
        <source>Write a picture of the window as a PNG file, and end.</source>
        <translation>حفظ صورة النافذة في ملف PNG ثم الإنهاء.</translation>
    </message>
    <message>
        <source>Write results as JSON, one object a line.</source>
        <translation>كتابة النتائج بصيغة JSON، كائن في كل سطر.</translation>
    </message>
    <message>
        <source>Write results as fields between tabs, for scripts.</source>
        <translation>كتابة النتائج كحقول تفصلها علامات جدولة، للنصوص البرمجية.</translation>
    </message>
    <message>
        <source>Write these fields only, in this order; their names are those of --json.</source>
        <translation>كتابة هذه الحقول فقط بهذا الترتيب؛ وأسماؤها كما في --json.</translation>
    </message>
    <message>
        <source>Write traces to standard error.</source>
        <translation>كتابة التتبّع إلى خرج الأخطاء القياسي.</translation>
    </message>
    <message>
        <source>a PIN has 4 to 8 digits</source>
        <translation>يتكون رمز PIN من 4 إلى 8 أرقام</translation>
    </message>
    <message>
        <source>a PUK has 8 digits</source>
        <translation>يتكون رمز PUK من 8 أرقام</translation>
    </message>
    <message>
        <source>a picture is taken without a file to import</source>
        <translation>تُلتقط الصورة من دون ملف للاستيراد</translation>
    </message>
    <message>
        <source>an IPv4 address, or nothing</source>
        <translation>عنوان IPv4 أو لا شيء</translation>
    </message>
    <message>
        <source>an argument is not FIELD=VALUE; fields: %1</source>
        <translation>أحد الوسائط ليس بصيغة حقل=قيمة؛ الحقول: %1</translation>
    </message>
    <message>
        <source>an option's value is empty</source>
        <translation>قيمة أحد الخيارات فارغة</translation>
    </message>
    <message>
        <source>argument %1 is not UTF-8</source>
        <translation>الوسيط %1 ليس بترميز UTF-8</translation>
    </message>
    <message>
        <source>attempts left: %1</source>
        <translation>المحاولات المتبقية: %1</translation>
    </message>
    <message>
        <source>attempts to unlock</source>
        <translation>محاولات إلغاء القفل</translation>
    </message>
    <message>
        <source>automatically</source>
        <translation>تلقائيًا</translation>
    </message>
    <message>
        <source>backend</source>
        <translation>الواجهة الخلفية</translation>
    </message>
    <message>
        <source>by the card's operator name %1: %2</source>
        <translation>حسب اسم المشغّل في البطاقة، %1: %2</translation>
    </message>
    <message>
        <source>can't be dialled with</source>
        <translation>لا يصلح للاتصال</translation>
    </message>
    <message>
        <source>can't write the picture %1</source>
        <translation>تتعذر كتابة الصورة %1</translation>
    </message>
    <message>
        <source>no limit is set</source>
        <translation>لم يُحدَّد أي حد</translation>
    </message>
    <message>
        <source>no window can be opened: %1</source>
        <translation>يتعذر فتح أي نافذة: %1</translation>
    </message>
    <message>
        <source>card</source>
        <translation>البطاقة</translation>
    </message>
    <message>
        <source>card mode (2 is CDMA)</source>
        <translation>وضع البطاقة (2 هو CDMA)</translation>
    </message>
    <message>
        <source>card's operator</source>
        <translation>مشغّل البطاقة</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>المختار</translation>
    </message>
    <message>
        <source>chosen, not plugged in</source>
        <translation>المختار، غير موصول</translation>
    </message>
    <message>
        <source>complete is for the shells' completions</source>
        <translation>complete مخصص للإكمال التلقائي في الصدفات</translation>
    </message>
    <message>
        <source>config takes one key; see config --check</source>
        <translation>يأخذ config مفتاحًا واحدًا؛ انظر config --check</translation>
    </message>
    <message>
        <source>connected: %1</source>
        <translation>متصل: %1</translation>
    </message>
    <message>
        <source>connecting: %1: %2</source>
        <translation>جارٍ الاتصال: %1: %2</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>customise name</source>
        <translation>اسم التخصيص</translation>
    </message>
    <message>
        <source>data-service user</source>
        <translation>مستخدم خدمة البيانات</translation>
    </message>
    <message>
        <source>default takes a name or --clear, not both</source>
        <translation>يأخذ default اسمًا أو --clear، لا كليهما</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>مرفوض</translation>
    </message>
    <message>
        <source>dials as CDMA</source>
        <translation>يتصل بنمط CDMA</translation>
    </message>
    <message>
        <source>disconnected: %1</source>
        <translation>قُطع الاتصال: %1</translation>
    </message>
    <message>
        <source>disconnecting: %1</source>
        <translation>جارٍ قطع الاتصال: %1</translation>
    </message>
    <message>
        <source>export takes names or --all</source>
        <translation>يأخذ export أسماء أو --all</translation>
    </message>
    <message>
        <source>exported %1 to %2</source>
        <translation>صُدّر %1 إلى %2</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>متعطل</translation>
    </message>
    <message>
        <source>generation</source>
        <translation>الجيل</translation>
    </message>
    <message>
        <source>home</source>
        <translation>الشبكة الأصلية</translation>
    </message>
    <message>
        <source>how %1 tells a balance is not known; see orbisctl ussd CODE</source>
        <translation>لا يُعرف كيف يخبر المشغّل %1 بالرصيد؛ انظر orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>how many attempts are left is not known</source>
        <translation>عدد المحاولات المتبقية غير معروف</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>خامل</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>استُورد %1</translation>
    </message>
    <message>
        <source>letters, digits, dots and hyphens</source>
        <translation>أحرف وأرقام ونقاط وواصلات</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>القفل</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>مقفل</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>الشركة المصنّعة</translation>
    </message>
    <message>
        <source>matched IMSI prefix</source>
        <translation>بادئة IMSI المطابقة</translation>
    </message>
    <message>
        <source>model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>المودم</translation>
    </message>
    <message>
        <source>multi-mode card</source>
        <translation>بطاقة متعددة الأوضاع</translation>
    </message>
    <message>
        <source>neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE</source>
        <translation>لا يدل ملف التعريف ولا بطاقة SIM على المشغّل؛ انظر orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>رمز الشبكة</translation>
    </message>
    <message>
        <source>new name</source>
        <translation>اسم جديد</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>no command is given; see orbisctl --help</source>
        <translation>لم يُعطَ أمر؛ انظر orbisctl --help</translation>
    </message>
    <message>
        <source>no connection in time</source>
        <translation>لم يتم الاتصال في الوقت المحدد</translation>
    </message>
    <message>
        <source>no event counter can be had: %1</source>
        <translation>لا يتوفر عدّاد أحداث: %1</translation>
    </message>
    <message>
        <source>no language "%1"; there are: %2</source>
        <translation>لا توجد لغة «%1»؛ المتاح: %2</translation>
    </message>
    <message>
        <source>no page "%1"; there are: %2</source>
        <translation>لا توجد صفحة «%1»؛ المتاح: %2</translation>
    </message>
    <message>
        <source>no temporary folder: %1</source>
        <translation>لا يوجد مجلد مؤقت: %1</translation>
    </message>
    <message>
        <source>no-modem</source>
        <translation>لا يوجد مودم</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>not connected: %1</source>
        <translation>غير متصل: %1</translation>
    </message>
    <message>
        <source>not connected; the modem is in use by %1</source>
        <translation>غير متصل؛ المودم قيد الاستخدام من قبل %1</translation>
    </message>
    <message>
        <source>note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>nothing can tell of connections</source>
        <translation>لا مصدر لمعلومات الاتصالات</translation>
    </message>
    <message>
        <source>nothing can tell of modems</source>
        <translation>لا مصدر لمعلومات أجهزة المودم</translation>
    </message>
    <message>
        <source>nothing has been counted yet</source>
        <translation>لم يُحسب شيء بعد</translation>
    </message>
    <message>
        <source>nothing was imported from %1</source>
        <translation>لم يُستورد شيء من %1</translation>
    </message>
    <message>
        <source>nothing was sent: %1 tells a balance by message or phone alone</source>
        <translation>لم يُرسل شيء: لا يخبر المشغّل %1 بالرصيد إلا برسالة أو بالهاتف</translation>
    </message>
    <message>
        <source>off</source>
        <translation>متوقف</translation>
    </message>
    <message>
        <source>on</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>on, roaming too</source>
        <translation>مفعّل، وأثناء التجوال أيضًا</translation>
    </message>
    <message>
        <source>only one of these goes at a time: %1</source>
        <translation>لا يمكن استعمال أكثر من واحد من هذه في المرة: %1</translation>
    </message>
    <message>
        <source>other</source>
        <translation>آخر</translation>
    </message>
    <message>
        <source>others can read a password on the command line in the list of processes; use password=-</source>
        <translation>يمكن للآخرين قراءة كلمة المرور من سطر الأوامر في قائمة العمليات؛ استخدم password=-</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>رقم الشريحة</translation>
    </message>
    <message>
        <source>password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>password: only Latin-1 characters can be stored sealed</source>
        <translation>password: لا تُحفظ مشفّرة إلا محارف Latin-1</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>present</source>
        <translation>موجودة</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>معدّ</translation>
    </message>
    <message>
        <source>preset, default</source>
        <translation>معدّ، افتراضي</translation>
    </message>
    <message>
        <source>product type (1 is CDMA)</source>
        <translation>نوع المنتج (1 هو CDMA)</translation>
    </message>
    <message>
        <source>profiles restored: %1</source>
        <translation>ملفات التعريف المستعادة: %1</translation>
    </message>
    <message>
        <source>profiles saved to %1: %2</source>
        <translation>ملفات التعريف المحفوظة في %1: %2</translation>
    </message>
    <message>
        <source>proposed default</source>
        <translation>الافتراضي المقترح</translation>
    </message>
    <message>
        <source>proposed for</source>
        <translation>مقترح لـ</translation>
    </message>
    <message>
        <source>puk</source>
        <translation>PUK</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>registration</source>
        <translation>التسجيل في الشبكة</translation>
    </message>
    <message>
        <source>replaced %1</source>
        <translation>استُبدل %1</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>تجوال</translation>
    </message>
    <message>
        <source>same     %1</source>
        <translation>%1 دون تغيير</translation>
    </message>
    <message>
        <source>say on or off, not %1</source>
        <translation>حدّد on أو off، لا %1</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>جارٍ البحث</translation>
    </message>
    <message>
        <source>signal in percent</source>
        <translation>الإشارة بالمئة</translation>
    </message>
    <message>
        <source>skipped  %1 (exists; see --replace)</source>
        <translation>تُخطّي %1 (موجود؛ انظر --replace)</translation>
    </message>
    <message>
        <source>standard input can't be read</source>
        <translation>لا يمكن قراءة الدخل القياسي</translation>
    </message>
    <message>
        <source>standard input can't be read: %1</source>
        <translation>لا يمكن قراءة الدخل القياسي: %1</translation>
    </message>
    <message>
        <source>starting</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>state</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>الحالة %1</translation>
    </message>
    <message>
        <source>status (3 is ready)</source>
        <translation>الحالة (3 تعني جاهز)</translation>
    </message>
    <message>
        <source>system mode</source>
        <translation>وضع النظام</translation>
    </message>
    <message>
        <source>system sub-mode</source>
        <translation>الوضع الفرعي للنظام</translation>
    </message>
    <message>
        <source>takes USSD commands</source>
        <translation>يقبل أوامر USSD</translation>
    </message>
    <message>
        <source>technology</source>
        <translation>التقنية</translation>
    </message>
    <message>
        <source>text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>the backup can't be read</source>
        <translation>لا يمكن قراءة النسخة الاحتياطية</translation>
    </message>
    <message>
        <source>the card asks for its %1; see orbisctl %2</source>
        <translation>تطلب البطاقة رمز %1؛ انظر orbisctl %2</translation>
    </message>
    <message>
        <source>the card asks for no %1</source>
        <translation>لا تطلب البطاقة رمز %1</translation>
    </message>
    <message>
        <source>the card can't be unlocked</source>
        <translation>لا يمكن إلغاء قفل البطاقة</translation>
    </message>
    <message>
        <source>the card does not answer; whether it took the code is not known</source>
        <translation>لا تجيب البطاقة؛ ولا يُعرف هل قبلت الرمز</translation>
    </message>
    <message>
        <source>the card is locked in a way that neither PIN nor PUK opens</source>
        <translation>البطاقة مقفلة بقفل لا يفتحه رمز PIN ولا رمز PUK</translation>
    </message>
    <message>
        <source>the card is unlocked</source>
        <translation>أُلغي قفل البطاقة</translation>
    </message>
    <message>
        <source>the card takes no code now</source>
        <translation>لا تقبل البطاقة رمزًا الآن</translation>
    </message>
    <message>
        <source>the card's operator name %1 tells none of these</source>
        <translation>اسم المشغّل في البطاقة، %1، لا يدل على أي منها</translation>
    </message>
    <message>
        <source>the choice can't be kept in the settings</source>
        <translation>لا يمكن حفظ الاختيار في الإعدادات</translation>
    </message>
    <message>
        <source>the configuration customised for %1 leaves no presets by IMSI</source>
        <translation>التهيئة المخصصة لـ %1 لا تترك ملفات تعريف معدّة مسبقًا حسب IMSI</translation>
    </message>
    <message>
        <source>the configuration has no presets by IMSI</source>
        <translation>لا تحتوي التهيئة على ملفات تعريف معدّة مسبقًا حسب IMSI</translation>
    </message>
    <message>
        <source>the connection can't be ended</source>
        <translation>لا يمكن إنهاء الاتصال</translation>
    </message>
    <message>
        <source>the connection has not ended yet</source>
        <translation>لم ينتهِ الاتصال بعد</translation>
    </message>
    <message>
        <source>the connection of %1 is not ours to end</source>
        <translation>اتصال %1 ليس لنا أن ننهيه</translation>
    </message>
    <message>
        <source>the connection was ended elsewhere</source>
        <translation>أُنهي الاتصال من مكان آخر</translation>
    </message>
    <message>
        <source>the data folder %1 can't be made or entered</source>
        <translation>لا يمكن إنشاء مجلد البيانات %1 أو فتحه</translation>
    </message>
    <message>
        <source>the data folder %1 is not a folder</source>
        <translation>مجلد البيانات %1 ليس مجلدًا</translation>
    </message>
    <message>
        <source>the data volume can't be stored</source>
        <translation>لا يمكن حفظ حجم البيانات</translation>
    </message>
    <message>
        <source>the default can't be cleared</source>
        <translation>لا يمكن إلغاء الافتراضي</translation>
    </message>
    <message>
        <source>the default can't be restored</source>
        <translation>لا يمكن استعادة الافتراضي</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>لا يمكن تعيين الافتراضي</translation>
    </message>
    <message>
        <source>the field %1 is given twice</source>
        <translation>ذُكر الحقل %1 مرتين</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>لا يمكن استيراد الملف</translation>
    </message>
    <message>
        <source>the file's name is empty</source>
        <translation>اسم الملف فارغ</translation>
    </message>
    <message>
        <source>the limit can't be stored</source>
        <translation>لا يمكن حفظ الحد</translation>
    </message>
    <message>
        <source>the modem does not answer</source>
        <translation>لا يجيب المودم</translation>
    </message>
    <message>
        <source>the modem is not ready for a command, or another one is under way</source>
        <translation>المودم غير جاهز لأمر، أو أمر آخر قيد التنفيذ</translation>
    </message>
    <message>
        <source>the modem's backend can't be had</source>
        <translation>الواجهة الخلفية للمودم غير متاحة</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>الاسم فارغ؛ انظر default --clear</translation>
    </message>
    <message>
        <source>the network did not answer in time</source>
        <translation>لم تجب الشبكة في الوقت المناسب</translation>
    </message>
    <message>
        <source>the new profile's name is the first argument</source>
        <translation>اسم ملف التعريف الجديد هو الوسيط الأول</translation>
    </message>
    <message>
        <source>the password of %1 is not base64, as its encrypttype says; set it again</source>
        <translation>كلمة مرور %1 ليست base64 كما يذكر encrypttype؛ عيّنها من جديد</translation>
    </message>
    <message>
        <source>the profile can't be added</source>
        <translation>لا يمكن إضافة ملف التعريف</translation>
    </message>
    <message>
        <source>the profile can't be changed</source>
        <translation>لا يمكن تغيير ملف التعريف</translation>
    </message>
    <message>
        <source>the profile can't be deleted</source>
        <translation>لا يمكن حذف ملف التعريف</translation>
    </message>
    <message>
        <source>the profile library does not hold the preset %1</source>
        <translation>لا تحتوي مكتبة ملفات التعريف على ملف التعريف المعدّ مسبقًا %1</translation>
    </message>
    <message>
        <source>the profiles can't be changed</source>
        <translation>لا يمكن تغيير ملفات التعريف</translation>
    </message>
    <message>
        <source>the profiles can't be exported</source>
        <translation>لا يمكن تصدير ملفات التعريف</translation>
    </message>
    <message>
        <source>the profiles can't be imported</source>
        <translation>لا يمكن استيراد ملفات التعريف</translation>
    </message>
    <message>
        <source>the profiles can't be listed</source>
        <translation>لا يمكن سرد ملفات التعريف</translation>
    </message>
    <message>
        <source>the profiles can't be restored</source>
        <translation>لا يمكن استعادة ملفات التعريف</translation>
    </message>
    <message>
        <source>the profiles can't be stored</source>
        <translation>لا يمكن حفظ ملفات التعريف</translation>
    </message>
    <message>
        <source>the session has ended</source>
        <translation>انتهت الجلسة</translation>
    </message>
    <message>
        <source>the settings can't be stored</source>
        <translation>لا يمكن حفظ الإعدادات</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>لا يمكن حفظ إعدادات الاتصال التلقائي</translation>
    </message>
    <message>
        <source>the two PINs differ</source>
        <translation>رمزا PIN مختلفان</translation>
    </message>
    <message>
        <source>there are no profiles %1</source>
        <translation>لا توجد ملفات تعريف %1</translation>
    </message>
    <message>
        <source>there is a profile %1 already</source>
        <translation>يوجد ملف تعريف %1 بالفعل</translation>
    </message>
    <message>
        <source>there is no SIM card</source>
        <translation>لا توجد بطاقة SIM</translation>
    </message>
    <message>
        <source>there is no configuration key %1</source>
        <translation>لا يوجد مفتاح تهيئة %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>لا يوجد ملف تعريف افتراضي؛ سمِّ واحدًا: orbisctl connect NAME</translation>
    </message>
    <message>
        <source>there is no field %1; there are: %2</source>
        <translation>لا يوجد حقل %1؛ الموجود: %2</translation>
    </message>
    <message>
        <source>there is no modem</source>
        <translation>لا يوجد مودم</translation>
    </message>
    <message>
        <source>there is no modem %1; see orbisctl modems</source>
        <translation>لا يوجد مودم %1؛ انظر orbisctl modems</translation>
    </message>
    <message>
        <source>there is no profile %1</source>
        <translation>لا يوجد ملف تعريف %1</translation>
    </message>
    <message>
        <source>there is no profile of one's own</source>
        <translation>لا يوجد ملف تعريف خاص</translation>
    </message>
    <message>
        <source>this user may not unlock the card</source>
        <translation>لا يُسمح لهذا المستخدم بإلغاء قفل البطاقة</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true أو false</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>وسيط غير متوقع: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>لا معلومات</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>أمر غير معروف %1؛ انظر orbisctl --help</translation>
    </message>
    <message>
        <source>unknown device %1; use one of %2</source>
        <translation>جهاز غير معروف %1؛ الممكن: %2</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>الاستخدام: %1</translation>
    </message>
    <message>
        <source>user</source>
        <translation>خاص</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>user, default</source>
        <translation>خاص، افتراضي</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>تحذير: %1</translation>
    </message>
    <message>
        <source>what was counted can't be read, or is damaged</source>
        <translation>لا يمكن قراءة ما حُسب، أو أنه تالف</translation>
    </message>
    <message>
        <source>wrong %1: %2</source>
        <translation>رمز %1 خاطئ: %2</translation>
    </message>
    <message>
        <source>wrong %1: nothing opens the card any more</source>
        <translation>رمز %1 خاطئ: لم يعد شيء يفتح البطاقة</translation>
    </message>
    <message>
        <source>wrong %1: the card now asks for its PUK</source>
        <translation>رمز %1 خاطئ: تطلب البطاقة الآن رمز PUK</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: %2 حرفًا على الأكثر</translation>
    </message>
    <message>
        <source>%1: control characters can't be stored</source>
        <translation>%1: لا يمكن حفظ محارف التحكم</translation>
    </message>
    <message>
        <source>%1: may hold letters, digits, dots and hyphens</source>
        <translation>%1: يمكن أن يحتوي على أحرف وأرقام ونقاط وواصلات</translation>
    </message>
    <message>
        <source>%1: must be empty or an IPv4 address such as 192.0.2.1</source>
        <translation>%1: يجب أن يكون فارغًا أو عنوان IPv4 مثل 192.0.2.1</translation>
    </message>
    <message>
        <source>%1: must be true or false</source>
        <translation>%1: يجب أن يكون true أو false</translation>
    </message>
    <message>
        <source>Mobile broadband is switched off</source>
        <translation>النطاق العريض المحمول متوقف</translation>
    </message>
    <message>
        <source>NetworkManager can't use the modem now</source>
        <translation>لا يمكن لـ NetworkManager استخدام المودم الآن</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager لا يستجيب</translation>
    </message>
    <message>
        <source>ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto</source>
        <translation>لا يحدّد ORBISDIAL_DEVICE واجهة خلفية؛ الممكن simulated أو modemmanager أو none أو auto</translation>
    </message>
    <message>
        <source>a link in a folder where others may have put it is not followed: %1</source>
        <translation>لا يُتبع رابط ربما وضعه آخرون في المجلد: %1</translation>
    </message>
    <message>
        <source>a name has at most %1 characters</source>
        <translation>لا يزيد الاسم على %1 حرفًا</translation>
    </message>
    <message>
        <source>a name must not contain any of %1</source>
        <translation>يجب ألا يحتوي الاسم على أي من هذه الأحرف: %1</translation>
    </message>
    <message>
        <source>a name must not contain control characters</source>
        <translation>يجب ألا يحتوي الاسم على محارف تحكم</translation>
    </message>
    <message>
        <source>a password can't be sealed</source>
        <translation>يتعذّر تشفير كلمة مرور</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>يحتاج ملف التعريف إلى اسم</translation>
    </message>
    <message>
        <source>a profile needs an access number, for example phonenumber=*99#</source>
        <translation>يحتاج ملف التعريف إلى رقم اتصال، مثل phonenumber=*99#</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>لأحد العناصر سمات يزيد عددها على %1</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>يُبقيه برنامج آخر مقفلًا</translation>
    </message>
    <message>
        <source>apn: must begin and end with a letter or a digit</source>
        <translation>apn: يجب أن يبدأ وينتهي بحرف أو رقم</translation>
    </message>
    <message>
        <source>can't be locked</source>
        <translation>يتعذّر قفله</translation>
    </message>
    <message>
        <source>can't be locked: it is not a regular file</source>
        <translation>يتعذّر قفله: ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>can't be looked at</source>
        <translation>يتعذّر الاطلاع عليه</translation>
    </message>
    <message>
        <source>can't be opened</source>
        <translation>يتعذّر فتحه</translation>
    </message>
    <message>
        <source>can't be read now; what was last read of it stays in force</source>
        <translation>تتعذّر قراءته الآن؛ ويبقى ساريًا ما قُرئ منه آخر مرة</translation>
    </message>
    <message>
        <source>can't be read: %1</source>
        <translation>تتعذّر قراءته: %1</translation>
    </message>
    <message>
        <source>can't be written as XML</source>
        <translation>تتعذّر كتابته بصيغة XML</translation>
    </message>
    <message>
        <source>can't close</source>
        <translation>يتعذّر الإغلاق</translation>
    </message>
    <message>
        <source>can't create a file in the folder</source>
        <translation>يتعذّر إنشاء ملف في المجلد</translation>
    </message>
    <message>
        <source>can't enter the folder</source>
        <translation>يتعذّر دخول المجلد</translation>
    </message>
    <message>
        <source>can't enter the root folder</source>
        <translation>يتعذّر دخول المجلد الجذر</translation>
    </message>
    <message>
        <source>can't flush to disk</source>
        <translation>يتعذّر الإفراغ إلى القرص</translation>
    </message>
    <message>
        <source>can't look at the folder</source>
        <translation>يتعذّر الاطلاع على المجلد</translation>
    </message>
    <message>
        <source>can't read a link</source>
        <translation>تتعذّر قراءة رابط</translation>
    </message>
    <message>
        <source>can't replace</source>
        <translation>يتعذّر الاستبدال</translation>
    </message>
    <message>
        <source>can't set the file's mode</source>
        <translation>يتعذّر تعيين صلاحيات الملف</translation>
    </message>
    <message>
        <source>can't set the file's owner</source>
        <translation>يتعذّر تعيين مالك الملف</translation>
    </message>
    <message>
        <source>can't write</source>
        <translation>تتعذّر الكتابة</translation>
    </message>
    <message>
        <source>elements stand more than %1 deep in one another</source>
        <translation>العناصر متداخلة بعمق يزيد على %1</translation>
    </message>
    <message>
        <source>every name for a copy of the damaged file is taken</source>
        <translation>كل الأسماء لنسخة من الملف التالف مستعملة</translation>
    </message>
    <message>
        <source>is damaged, and can't be kept: %1</source>
        <translation>تالف ولا يمكن الاحتفاظ به: %1</translation>
    </message>
    <message>
        <source>is no file's name</source>
        <translation>ليس اسم ملف</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>it is too large: %1 of at most %2 MB</source>
        <translation>كبير جدًا: %1 م.ب، والحد %2 م.ب</translation>
    </message>
    <message>
        <source>leads to no file</source>
        <translation>لا يؤدي إلى أي ملف</translation>
    </message>
    <message>
        <source>not written: it would be too large to be read again, %1 of at most %2 MB</source>
        <translation>لم يُكتب: سيكون أكبر من أن يُقرأ مجددًا، %1 م.ب، والحد %2 م.ب</translation>
    </message>
    <message>
        <source>other programs make and remove it all the time</source>
        <translation>تنشئه برامج أخرى وتزيله باستمرار</translation>
    </message>
    <message>
        <source>profiles can't be exported to this file</source>
        <translation>لا يمكن تصدير ملفات التعريف إلى هذا الملف</translation>
    </message>
    <message>
        <source>reading failed</source>
        <translation>فشلت القراءة</translation>
    </message>
    <message>
        <source>the XML declaration is too long</source>
        <translation>تصريح XML طويل جدًا</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: %2</source>
        <translation>لا يمكن تحميل الواجهة الخلفية «%1»: %2</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: it belongs to another version</source>
        <translation>لا يمكن تحميل الواجهة الخلفية «%1»: تخص إصدارًا آخر</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: there is no %2</source>
        <translation>لا يمكن تحميل الواجهة الخلفية «%1»: لا يوجد %2</translation>
    </message>
    <message>
        <source>the device backend can't start</source>
        <translation>يتعذّر بدء الواجهة الخلفية للمودم</translation>
    </message>
    <message>
        <source>the document type declares entities or attributes</source>
        <translation>يعرّف نوع المستند كيانات أو سمات</translation>
    </message>
    <message>
        <source>the output can't be written: %1</source>
        <translation>تتعذّر كتابة الخرج: %1</translation>
    </message>
    <message>
        <source>the process was made by one that uses the modem</source>
        <translation>أنشأت هذه العملية عملية أخرى تستخدم المودم</translation>
    </message>
    <message>
        <source>the sealed password of "%1" was changed outside and can't be opened</source>
        <translation>كلمة المرور المشفّرة في «%1» غُيّرت من الخارج ولا يمكن فكّها</translation>
    </message>
    <message>
        <source>the user data directory can't be had</source>
        <translation>مجلد بيانات المستخدم غير متاح</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>عدد العناصر يزيد على %1</translation>
    </message>
    <message>
        <source>there are more than %1 namespaces</source>
        <translation>عدد نطاقات الأسماء يزيد على %1</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>لا تكفي الذاكرة له</translation>
    </message>
    <message>
        <source>was damaged (%1); the damaged file is kept as %2</source>
        <translation>كان تالفًا (%1)؛ حُفظ الملف التالف باسم %2</translation>
    </message>
    <message>
        <source>was removed while the profiles were being changed</source>
        <translation>أُزيل أثناء تغيير ملفات التعريف</translation>
    </message>
    <message>
        <source>written, but the folder can't be flushed to disk</source>
        <translation>تمت الكتابة، لكن يتعذّر إفراغ المجلد إلى القرص</translation>
    </message>
</context>
</TS>
