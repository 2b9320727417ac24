<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>Имя пользователя и пароль для «%1»:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>Настройки подключения не загружены.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>Основной профиль не задан. Выберите его в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>Профиля «%1» нет.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>Подключение отменено.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>Модем ещё не готов. Подождите немного и повторите попытку; если не поможет, отключите его и подключите снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>Сеть не отвечает (нет несущей). Повторите попытку там, где приём лучше.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>Сеть отклонила имя пользователя или пароль профиля «%1». Исправьте их в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <translation>Модем не найден. Подключите его.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <translation>Модем занят: %1. Сначала завершите это подключение.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <translation>На карте нет услуги передачи данных для «%1». Проверьте точку доступа (APN) или спросите оператора.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <translation>Сеть отклонила «%1» без объяснения. Проверьте имя пользователя, пароль и точку доступа (APN).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <translation>Подключение прервано. Подключитесь снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>Не удалось начать подключение на этом компьютере. Повторите попытку; возможно, подробности скажут больше.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <translation>Номер занят. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <translation>Нет гудка. Проверьте антенну и карту модема.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <translation>Сеть не ответила вовремя. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <translation>Сеть не принимает точку доступа (APN) профиля «%1». Исправьте её в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <translation>Сеть не найдена. Повторите попытку там, где приём лучше.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <translation>Сеть не допускает эту карту. Спросите оператора, активна ли она.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <translation>В модеме нет SIM-карты. Вставьте её.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <translation>SIM-карта заблокирована. Введите её PIN-код.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <translation>Модем не принимает эту SIM-карту. Используйте карту оператора модема.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <translation>PIN-код неверен. Введите правильный.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <translation>Модем извлечён или перестал работать. Подключите его снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <translation>Служба модемов (ModemManager) не запущена или не отвечает. Перезапустите её или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>Служба подключений (NetworkManager) не запущена или не отвечает. Перезапустите её или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>Подключение завершено, так как компьютер перешёл в спящий режим. Подключитесь снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>Другая программа заняла модем для своего подключения. Завершите его и подключитесь снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>Сеть требует имя пользователя и пароль. Введите их для «%1» в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>Подключение завершено вне этой программы. Подключитесь снова, если оно нужно.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>Подключение завершено в другой программе OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <translation>Модем завис в предыдущем вызове. Отключите его и подключите снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <translation>Вам не разрешено подключаться на этом компьютере. Попросите разрешения у администратора.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <translation>Не удалось подключиться с профилем «%1». Что известно, сказано в подробностях.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <translation>Не удалось завершить подключение. Повторите попытку.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>Модем или сеть не принимает такие команды.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>Сеть отклонила команду или завершила сеанс.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <translation>Сеть не ответила.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <translation>Сеанс прерван.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <translation>Вам не разрешено отправлять команды на этом компьютере. Попросите разрешения у администратора.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <translation>Команда не выполнена.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <translation>Позвоните по номеру %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <translation>Отправьте SMS «%2» на номер %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <translation>Отправьте пустое SMS на номер %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <translation>Имя профиля «%1» слишком длинное для подключения. Сократите его.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <translation>Номер дозвона профиля «%1» нельзя использовать. Исправьте его в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <translation>Точку доступа (APN) профиля «%1» нельзя использовать: допустимо не больше 64 латинских букв, цифр, точек, дефисов и подчёркиваний. Исправьте её в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <translation>IP-адрес профиля «%1» недопустим. Исправьте его в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <translation>Адрес DNS-сервера профиля «%1» недопустим. Исправьте его в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <translation>Адрес дополнительного DNS-сервера профиля «%1» недопустим. Исправьте его в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <translation>Имя пользователя профиля «%1» нельзя передать: не больше 255 байт. Сократите его.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <translation>Пароль профиля «%1» нельзя передать: не больше 255 байт. Сократите его.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <translation>Подготовка модема</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <translation>Поиск сети, это может занять минуту</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <translation>Вызов сети</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <translation>Запрос адреса</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <translation>Занят: %1</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <translation>Номер дозвона не действует: модем набирает номер самой сети.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <translation>Постоянный IP-адрес не действует: адрес назначает сеть.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <translation>Серверы WINS не действуют.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <translation>Постоянный IP-адрес получить не удалось; сеть назначила %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <translation>Израсходовано 80 процентов месячного объёма данных.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <translation>Месячный объём данных исчерпан.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <translation>Автоматическое подключение ждёт, пока вы подключитесь сами.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <translation>Автоматическое подключение ждёт модем.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <translation>Автоматическое подключение ждёт сеть.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <translation>Автоматическое подключение не действует в роуминге.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <translation>Автоматическое подключение ждёт, пока модем освободится.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <translation>Автоматическое подключение скоро повторит попытку.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <translation>Автоматическое подключение остановлено: сеть отклонила «%1». Исправьте имя пользователя и пароль или подключитесь сами.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <translation>Автоматическое подключение остановлено: новая попытка закончилась бы так же.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <translation>Автоматическое подключение не может использовать «%1»: этот профиль спрашивает имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BYTES</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBYTES</source>
        <translation>%1 кБ</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABYTES</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABYTES</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BITS_PER_SECOND</source>
        <translation>%1 бит/с</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBITS_PER_SECOND</source>
        <translation>%1 кбит/с</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABITS_PER_SECOND</source>
        <translation>%1 Мбит/с</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABITS_PER_SECOND</source>
        <translation>%1 Гбит/с</translation>
    </message>
</context>
<context>
    <name>NetConnectPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>Модемное подключение</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>Про&amp;филь подключения</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>Аутентификация</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>Протокол аутентификации</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>&amp;Точка доступа:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>&amp;Номер дозвона:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>По&amp;льзователь:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>Па&amp;роль:</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>&amp;Запрос при подключении</translation>
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
        <translation>&amp;Создать</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>&amp;Изменить</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>Со&amp;хранить</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>Сделать осно&amp;вным</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>Им&amp;порт…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>&amp;Экспорт…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>&amp;Ещё…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(основной)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Настройки подключения</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>Введите имя профиля.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>Профиль с таким именем уже существует. Выберите другое имя.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>Имя профиля не должно содержать следующих символов: </translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>Введите номер дозвона, например *99#.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>Недопустимое имя точки доступа. Оно может содержать буквы, цифры, точки и дефисы и должно начинаться и заканчиваться буквой или цифрой.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>Удалить этот профиль?</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>В профиле есть несохранённые изменения. Сохранить их?</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>уже существует. Заменить этот профиль?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>Применить этот ответ к остальным профилям</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>Недопустимый IP-адрес. Введите адрес вида 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>Недопустимый адрес DNS-сервера. Введите адрес вида 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>Недопустимый адрес WINS-сервера. Введите адрес вида 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>Импорт профилей</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>Экспорт профилей</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>Профили подключения</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>О&amp;бзор…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>DNS-серверы</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>WINS-серверы</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>IP-&amp;адрес:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>&amp;Первый:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>&amp;Второй:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>П&amp;ервый:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>Вт&amp;орой:</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>Новый профиль</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>Этот профиль доступен только для чтения. Чтобы изменить его, нажмите «Создать» и введите его значения под другим именем.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>Это готовый профиль оператора. Чтобы изменить его, закройте настройки и нажмите Ctrl+N в главном окне: будет создан собственный профиль с теми же значениями.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>Этот профиль подключён. Сначала отключитесь.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>Основной профиль нельзя сменить во время подключения. Сначала отключитесь.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>Профилей пока нет. Нажмите «Создать», чтобы добавить профиль.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>Профиль редактируется. Сначала нажмите «Сохранить» или «Отменить».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>Ни один профиль не редактируется. Сначала нажмите «Создать» или «Изменить».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>Этот профиль доступен только для чтения.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>Это готовый профиль оператора.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>Этот профиль подключён.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>Не удалось сохранить профиль. Ничего не потеряно: устраните проблему и снова нажмите «Сохранить».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>Есть недопустимые символы: используйте западноевропейские.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>Имя профиля</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>Профили на выбор</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>Имя файла не может содержать «*». Введите другое имя.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>уже существует. Профили этого файла сохранятся, одноимённые будут заменены. Экспортировать в него?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <translation>Конфигурация не разрешает импорт.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <translation>В файле нет профилей.</translation>
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
        <translation>OrbisDial (имитация модема)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>Страницы настроек</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>Основной профиль не задан</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>Нет подключения</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>Подключено: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>Отключение…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>Модуль подключения не загружен</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>SIM-карта %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>SIM-карта %1: готовый профиль «%2», выбран по префиксу %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <translation>SIM-карта %1: готовый профиль «%2», выбран по префиксу %3 и названию оператора %4</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>SIM-карта %1: префикс %2 известен, но ни один из его профилей не предложен как основной</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>SIM-карта %1: подходящего готового профиля нет</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>Ошибка сохранения: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>%1 нельзя использовать: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>не удалось загрузить (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>это не модуль этой программы</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>другой модуль имеет тот же идентификатор</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>не удалось запустить</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>Модем нельзя использовать: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>Не менять основной профиль: скрыть кнопку «Сделать основным»</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>Не удалось сохранить настройки.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>Профиль:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>Профиль для подключения</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>Выберите профиль или введите часть его имени</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (основной)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>Мои профили</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>Готовые профили для этой SIM-карты</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>Готовые профили…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>Готовые профили операторов мира</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>Поиск:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>Страна, оператор, тариф, APN или код сети</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>Страны, операторы и тарифы</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>Страна, оператор, тариф</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <translation>Тарифов: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>Ничего не найдено. Попробуйте меньше слов или другое написание.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>Прочие готовые профили</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <translation>%1 (предоплата)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <translation>%1 (договор)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>Выберите тариф, чтобы увидеть его параметры.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>Создать профиль…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>Страна:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>Оператор:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>Тариф:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>назначает сеть</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>Номер дозвона:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>Пользователь:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>запрашивается при подключении</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>Аутентификация:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>Коды сети:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <translation>Создать на основе этого…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>Новый профиль</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <translation>Собственный профиль со значениями «%1». Их можно изменить в настройках.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>Сделать основным</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>Основной профиль нельзя сменить во время подключения.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <translation>Выбрать оператора…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>Для этой SIM-карты нет готового профиля. Выберите оператора или любой профиль ниже.</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>Разблокировать…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <translation>Баланс…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>&amp;Подключение</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>О программе OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>О программе OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>Программа для подключения через модемы мобильной связи.

Лицензия MIT. Использует Qt %1 (LGPL), libsodium (ISC), ICU (Unicode) и общедоступную базу mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>Подключиться с профилем</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>Показать окно</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>Отсутствует часть программы, которая устанавливает подключение. Переустановите OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>Поиск модема…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>Это займёт немного времени.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>Служба модемов недоступна</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial находит модемы через ModemManager, который не запущен или не отвечает. Установите или перезапустите его.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>Служба подключений недоступна</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>OrbisDial подключается через NetworkManager, который не отвечает. Перезапустите его или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>Нет модема</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>Подключите модем. Некоторые обнаруживаются только через полминуты.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>Нет SIM-карты</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>Отключите модем, вставьте SIM-карту и подключите его снова.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>SIM-карта заблокирована</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>Требуется PIN-код.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>PIN-код слишком много раз введён неверно. Требуется PUK-код, полученный от оператора.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>Эту блокировку не снять ни PIN-, ни PUK-кодом. Обратитесь к оператору или продавцу модема.</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>Модем запускается…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>Он скоро будет готов.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>Модем не готов</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>Отключите его и подключите снова.</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>Нет регистрации в сети</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>Поиск сети…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>Сеть не принимает эту SIM-карту. Обратитесь к оператору.</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>сигнал %1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>роуминг</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>Подключение с профилем %1…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>Не удалось подключиться</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>Не удалось подключиться с профилем %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>Подключение с профилем %1 прервано</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <translation>Подключение с профилем %1 завершено</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>Передача данных за последние три минуты</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>В этом месяце: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>В этом месяце: %1 из %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>Разблокировка SIM-карты</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>Баланс SIM-карты</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <translation>%1 сообщает баланс предоплаченной карты в ответ на команду %2. Ничего не отправляется, пока вы не нажмёте «Запросить».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <translation>%1 сообщает баланс таким способом, которым нужно воспользоваться самостоятельно:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>Как ваш оператор сообщает баланс, здесь неизвестно. Если вы знаете его команду, введите её; ничего не отправляется, пока вы не нажмёте «Запросить».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>Команда:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <translation>Запросить</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <translation>Ваш ответ:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>Ожидание ответа сети…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>Нет готового модема, который может отправлять команды в сеть.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>SIM-карта запрашивает PIN-код.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>PIN-код слишком много раз введён неверно. Введите PUK-код, полученный от оператора, и задайте новый PIN-код.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN</source>
        <translation>PIN-код:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK</source>
        <translation>PUK-код:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NEW_PIN</source>
        <translation>Новый PIN-код:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>Повторите новый PIN-код:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>Разблокировать</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>Осталось попыток: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>Число оставшихся попыток неизвестно.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>При ошибке карта запросит PUK-код.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>При ошибке карта станет непригодной навсегда.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>Использовать последнюю попытку</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>Карта проверяет код…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>Код неверен.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>У вас нет прав разблокировать карту. Обратитесь к администратору компьютера.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>Не удалось разблокировать карту. %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>Показывать сообщения о подключении</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>При закрытии окна программа остаётся в области уведомлений</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>Оставаться подключённым после выхода из программы</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>Месячный лимит трафика этой SIM-карты:</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>Вы подключены. При выходе из программы подключение будет разорвано.</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>Вы подключены; подключение сохранится после выхода из программы.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>Имитация модема</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>IMSI:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>нет карты</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>Многорежимная карта</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>Режим карты:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>Тип устройства:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>Режим системы:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>Подрежим:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>Дозвон:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>Ответ получен</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>Нет несущей</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>Ошибка аутентификации</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>Нет сигнала</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>Инициализация</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>Сменить карту</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>Параметр:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>Оборвать связь</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <translation>Из %1 ничего не импортировано.
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <translation>Сначала завершите начатое, затем откройте файл снова.</translation>
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
        <translation>%1 (выбран пользователем)</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1 (предложен конфигурацией)</translation>
    </message>
    <message>
        <source>%1 (simulated modem)</source>
        <translation>%1 (имитация модема)</translation>
    </message>
    <message>
        <source>%1 Put -- before a name that begins with a hyphen.</source>
        <translation>%1 Перед именем, которое начинается с дефиса, поставьте --.</translation>
    </message>
    <message>
        <source>%1 bytes received, %2 sent</source>
        <translation>получено %1 байт, отправлено %2</translation>
    </message>
    <message>
        <source>%1 holds no profile %2</source>
        <translation>в %1 нет профиля %2</translation>
    </message>
    <message>
        <source>%1 is a preset; make one of your own from it: %2</source>
        <translation>%1 — готовый профиль оператора; создайте на его основе свой: %2</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 уже подключён; см. orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is being connected; see orbisctl disconnect</source>
        <translation>%1 подключается; см. orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is no field to set; fields: %2</source>
        <translation>%1 — не изменяемое поле; поля: %2</translation>
    </message>
    <message>
        <source>%1 is no limit; say a volume such as 500MB or 1.5GB</source>
        <translation>%1 не лимит; укажите объём, например 500MB или 1.5GB</translation>
    </message>
    <message>
        <source>%1 is read-only; make one of your own from it: %2</source>
        <translation>%1 доступен только для чтения; создайте на его основе свой: %2</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>%1 может означать несколько команд: %2</translation>
    </message>
    <message>
        <source>%1 names a modem, and counts before the choice</source>
        <translation>%1 указывает модем и важнее этого выбора</translation>
    </message>
    <message>
        <source>%1 of %2 were no IMSI, which has 5 to 15 digits</source>
        <translation>не IMSI (от 5 до 15 цифр): %1 из %2</translation>
    </message>
    <message>
        <source>%1 percent of the limit of %2</source>
        <translation>%1 % лимита в %2</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1, %2:</translation>
    </message>
    <message>
        <source>%1, at most %2 characters</source>
        <translation>%1, не больше %2 символов</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 received, %3 sent, %4 together</source>
        <translation>%1: получено %2, отправлено %3, всего %4</translation>
    </message>
    <message>
        <source>%1: can't be written: %2</source>
        <translation>%1: не удаётся записать: %2</translation>
    </message>
    <message>
        <source>%1: does not exist</source>
        <translation>%1: не существует</translation>
    </message>
    <message>
        <source>%1: holds no template for new profiles; see --like</source>
        <translation>%1: нет шаблона для новых профилей; см. --like</translation>
    </message>
    <message>
        <source>%1: is no profile file; --force replaces it</source>
        <translation>%1: не файл профилей; --force заменит его</translation>
    </message>
    <message>
        <source>%1: is the user's profile file itself</source>
        <translation>%1: это сам файл профилей пользователя</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: строка %2: %3</translation>
    </message>
    <message>
        <source>%1: no prefix matches; the configuration's own presets</source>
        <translation>%1: подходящего префикса нет; готовые профили самой конфигурации</translation>
    </message>
    <message>
        <source>%1: not UTF-8 on standard input</source>
        <translation>%1: на стандартном вводе не в UTF-8</translation>
    </message>
    <message>
        <source>%1: not an IMSI</source>
        <translation>%1: не IMSI</translation>
    </message>
    <message>
        <source>%1: prefix %2</source>
        <translation>%1: префикс %2</translation>
    </message>
    <message>
        <source>%1: standard input holds none</source>
        <translation>%1: нет на стандартном вводе</translation>
    </message>
    <message>
        <source>%1; give a new one with password=</source>
        <translation>%1; задайте новый с помощью password=</translation>
    </message>
    <message>
        <source>%1; it ends with this program, see --hold</source>
        <translation>%1; завершится вместе с программой, см. --hold</translation>
    </message>
    <message>
        <source>%1; then the card asks for its PUK; --last takes it</source>
        <translation>%1; потом карта запросит PUK-код; --last использует попытку</translation>
    </message>
    <message>
        <source>%1; then the card is lost; --last takes it</source>
        <translation>%1; потом карта станет непригодной; --last использует попытку</translation>
    </message>
    <message>
        <source>%1; waits, since the network refused user name or password</source>
        <translation>%1; ожидает, так как сеть отклонила имя пользователя или пароль</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(скрыт)</translation>
    </message>
    <message>
        <source>--clear takes no modem</source>
        <translation>с --clear модем не указывается</translation>
    </message>
    <message>
        <source>--json goes with neither --terse nor --fields</source>
        <translation>--json нельзя сочетать ни с --terse, ни с --fields</translation>
    </message>
    <message>
        <source>--roaming goes with on</source>
        <translation>--roaming указывается вместе с on</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>--timeout принимает число секунд от 1 до 86400</translation>
    </message>
    <message>
        <source>A profile file to import; the window asks first.</source>
        <translation>Файл профилей для импорта; окно сначала спросит.</translation>
    </message>
    <message>
        <source>Add a profile. password=- reads the password from standard input.</source>
        <translation>Добавить профиль. password=- читает пароль со стандартного ввода.</translation>
    </message>
    <message>
        <source>All profiles of one's own.</source>
        <translation>Все свои профили.</translation>
    </message>
    <message>
        <source>Answer (none ends the session): </source>
        <translation>Ответ (пустой завершит сеанс): </translation>
    </message>
    <message>
        <source>Ask the network for a prepaid card's balance.</source>
        <translation>Запросить у сети баланс предоплаченной карты.</translation>
    </message>
    <message>
        <source>Change fields of a profile; name=NEW renames it.</source>
        <translation>Изменить поля профиля; name=НОВОЕ переименует его.</translation>
    </message>
    <message>
        <source>Command-line client of the OrbisDial connection manager.</source>
        <translation>Управление подключениями OrbisDial из командной строки.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Команды:</translation>
    </message>
    <message>
        <source>Connect with a profile, or with the default.</source>
        <translation>Подключиться с указанным профилем или с основным.</translation>
    </message>
    <message>
        <source>Connection manager for mobile-broadband modems.</source>
        <translation>Управление подключениями через мобильные модемы.</translation>
    </message>
    <message>
        <source>Delete profiles: all of them, or none.</source>
        <translation>Удалить профили: все указанные или ни одного.</translation>
    </message>
    <message>
        <source>End the connection, or give it up.</source>
        <translation>Завершить подключение или отказаться от него.</translation>
    </message>
    <message>
        <source>Export profiles into a file; others that it holds stay.</source>
        <translation>Экспортировать профили в файл; остальные в нём сохранятся.</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>Поля:</translation>
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
        <translation>Импортировать все профили из файла или указанные.</translation>
    </message>
    <message>
        <source>Keep the user's profiles in this folder.</source>
        <translation>Хранить профили пользователя в этой папке.</translation>
    </message>
    <message>
        <source>List all profiles; * marks the default.</source>
        <translation>Перечислить все профили; * отмечает основной.</translation>
    </message>
    <message>
        <source>List the modems; * marks the one in use.</source>
        <translation>Перечислить модемы; * отмечает используемый.</translation>
    </message>
    <message>
        <source>New PIN again: </source>
        <translation>Повторите новый PIN-код: </translation>
    </message>
    <message>
        <source>New PIN: </source>
        <translation>Новый PIN-код: </translation>
    </message>
    <message>
        <source>Open the settings at this page: its title or its plug-in's name.</source>
        <translation>Открыть настройки на этой странице: её заголовок или имя её модуля.</translation>
    </message>
    <message>
        <source>PIN (%1): </source>
        <translation>PIN-код (%1): </translation>
    </message>
    <message>
        <source>PUK (%1): </source>
        <translation>PUK-код (%1): </translation>
    </message>
    <message>
        <source>Password [as stored]: </source>
        <translation>Пароль [сохранённый]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Пароль: </translation>
    </message>
    <message>
        <source>Replace a file even if it holds something else than profiles.</source>
        <translation>Заменить файл, даже если в нём не профили.</translation>
    </message>
    <message>
        <source>Replace profiles whose names exist; without it they are skipped.</source>
        <translation>Заменять профили с уже имеющимися именами; иначе они пропускаются.</translation>
    </message>
    <message>
        <source>Save all profiles of one's own, and the chosen default, in a file.</source>
        <translation>Сохранить в файл все свои профили и выбранный основной.</translation>
    </message>
    <message>
        <source>See orbisctl COMMAND --help.</source>
        <translation>См. orbisctl COMMAND --help.</translation>
    </message>
    <message>
        <source>Send a command such as *100# to the network and show its answer.</source>
        <translation>Отправить в сеть команду, например *100#, и показать ответ.</translation>
    </message>
    <message>
        <source>Show a value of the function configuration, or all.</source>
        <translation>Показать одно значение конфигурации функций или все.</translation>
    </message>
    <message>
        <source>Show each month that is kept.</source>
        <translation>Показать каждый сохранённый месяц.</translation>
    </message>
    <message>
        <source>Show the connection.</source>
        <translation>Показать подключение.</translation>
    </message>
    <message>
        <source>Show the default profile, or choose it.</source>
        <translation>Показать основной профиль или выбрать его.</translation>
    </message>
    <message>
        <source>Show the fields of profiles.</source>
        <translation>Показать поля профилей.</translation>
    </message>
    <message>
        <source>Show the modem in use, or choose one by its key, IMEI or port.</source>
        <translation>Показать используемый модем или выбрать его по ключу, IMEI или порту.</translation>
    </message>
    <message>
        <source>Show the password too.</source>
        <translation>Показать и пароль.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Показать версию.</translation>
    </message>
    <message>
        <source>Show this help, or that of a command.</source>
        <translation>Показать эту справку или справку по команде.</translation>
    </message>
    <message>
        <source>Show what the SIM card moved this month, or set its limit.</source>
        <translation>Показать, сколько SIM-карта передала за этот месяц, или задать её лимит.</translation>
    </message>
    <message>
        <source>Show what the modem and its SIM card report, and the connection.</source>
        <translation>Показать, что сообщают модем и его SIM-карта, и подключение.</translation>
    </message>
    <message>
        <source>Speak this language, e.g. "de" or "zh_CN".</source>
        <translation>Язык программы, например «de» или «zh_CN».</translation>
    </message>
    <message>
        <source>Spend the last attempt, too.</source>
        <translation>Использовать даже последнюю попытку.</translation>
    </message>
    <message>
        <source>Start from this profile instead of the template for new ones.</source>
        <translation>Взять за основу этот профиль, а не шаблон для новых.</translation>
    </message>
    <message>
        <source>Start in the desktop's tray, without a window, where there is one.</source>
        <translation>Запустить без окна в области уведомлений, если она есть.</translation>
    </message>
    <message>
        <source>Stay, and hang up on Ctrl-C.</source>
        <translation>Остаться и отключиться по Ctrl-C.</translation>
    </message>
    <message>
        <source>Stay, and show each change.</source>
        <translation>Остаться и показывать каждое изменение.</translation>
    </message>
    <message>
        <source>Take profiles and default from a backup; those of other names stay.</source>
        <translation>Взять профили и основной из резервной копии; прочие сохранятся.</translation>
    </message>
    <message>
        <source>Take the choice back.</source>
        <translation>Отменить выбор.</translation>
    </message>
    <message>
        <source>Take the limit away.</source>
        <translation>Снять лимит.</translation>
    </message>
    <message>
        <source>Tell what is wrong with the shipped files, or with these.</source>
        <translation>Сообщить, что не так с файлами из поставки или с этими.</translation>
    </message>
    <message>
        <source>Tell which presets SIM cards select; - reads IMSIs from standard input.</source>
        <translation>Сообщить, какие готовые профили выбирают SIM-карты; - читает IMSI со стандартного ввода.</translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>Это имитация модема.</translation>
    </message>
    <message>
        <source>Unlock the SIM card with its PUK and set a new PIN, a line each.</source>
        <translation>Разблокировать SIM-карту PUK-кодом и задать новый PIN-код, по одному в строке.</translation>
    </message>
    <message>
        <source>Unlock the SIM card; the PIN is asked for, or read from standard input.</source>
        <translation>Разблокировать SIM-карту; PIN-код запрашивается или читается со стандартного ввода.</translation>
    </message>
    <message>
        <source>Use this modem: %1.</source>
        <translation>Использовать этот модем: %1.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Имя пользователя [%1]: </translation>
    </message>
    <message>
        <source>Wait no longer than so many seconds.</source>
        <translation>Ждать не дольше указанного числа секунд.</translation>
    </message>
    <message>
        <source>Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB.</source>
        <translation>Предупреждать при 80 и 100 процентах такого объёма в месяц, например 500MB или 1.5GB.</translation>
    </message>
    <message>
        <source>What the SIM cards call their operator.</source>
        <translation>Как SIM-карты называют своего оператора.</translation>
    </message>
    <message>
        <source>Whether the window connects with a profile by itself.</source>
        <translation>Подключается ли окно с профилем само.</translation>
    </message>
    <message>
        <source>While roaming, too.</source>
        <translation>В том числе в роуминге.</translation>
    </message>
    <message>
        <source>Write a picture of the window as a PNG file, and end.</source>
        <translation>Записать изображение окна в файл PNG и завершить работу.</translation>
    </message>
    <message>
        <source>Write results as JSON, one object a line.</source>
        <translation>Выводить результаты в JSON, по объекту в строке.</translation>
    </message>
    <message>
        <source>Write results as fields between tabs, for scripts.</source>
        <translation>Выводить результаты полями через табуляцию, для скриптов.</translation>
    </message>
    <message>
        <source>Write these fields only, in this order; their names are those of --json.</source>
        <translation>Выводить только эти поля в этом порядке; имена те же, что в --json.</translation>
    </message>
    <message>
        <source>Write traces to standard error.</source>
        <translation>Писать трассировку в стандартный вывод ошибок.</translation>
    </message>
    <message>
        <source>a PIN has 4 to 8 digits</source>
        <translation>в PIN-коде от 4 до 8 цифр</translation>
    </message>
    <message>
        <source>a PUK has 8 digits</source>
        <translation>в PUK-коде 8 цифр</translation>
    </message>
    <message>
        <source>a picture is taken without a file to import</source>
        <translation>изображение снимается без файла для импорта</translation>
    </message>
    <message>
        <source>an IPv4 address, or nothing</source>
        <translation>IPv4-адрес или ничего</translation>
    </message>
    <message>
        <source>an argument is not FIELD=VALUE; fields: %1</source>
        <translation>аргумент не вида ПОЛЕ=ЗНАЧЕНИЕ; поля: %1</translation>
    </message>
    <message>
        <source>an option's value is empty</source>
        <translation>значение параметра пустое</translation>
    </message>
    <message>
        <source>argument %1 is not UTF-8</source>
        <translation>аргумент %1 не в UTF-8</translation>
    </message>
    <message>
        <source>attempts left: %1</source>
        <translation>осталось попыток: %1</translation>
    </message>
    <message>
        <source>attempts to unlock</source>
        <translation>осталось попыток</translation>
    </message>
    <message>
        <source>automatically</source>
        <translation>автоматически</translation>
    </message>
    <message>
        <source>backend</source>
        <translation>серверная часть</translation>
    </message>
    <message>
        <source>by the card's operator name %1: %2</source>
        <translation>по имени оператора на карте, %1: %2</translation>
    </message>
    <message>
        <source>can't be dialled with</source>
        <translation>с ним нельзя подключиться</translation>
    </message>
    <message>
        <source>can't write the picture %1</source>
        <translation>не удаётся записать изображение %1</translation>
    </message>
    <message>
        <source>no limit is set</source>
        <translation>лимит не задан</translation>
    </message>
    <message>
        <source>no window can be opened: %1</source>
        <translation>не удаётся открыть окно: %1</translation>
    </message>
    <message>
        <source>card</source>
        <translation>карта</translation>
    </message>
    <message>
        <source>card mode (2 is CDMA)</source>
        <translation>режим карты (2 — CDMA)</translation>
    </message>
    <message>
        <source>card's operator</source>
        <translation>оператор карты</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>выбран</translation>
    </message>
    <message>
        <source>chosen, not plugged in</source>
        <translation>выбран, не подключён</translation>
    </message>
    <message>
        <source>complete is for the shells' completions</source>
        <translation>complete служит для автодополнения в оболочках</translation>
    </message>
    <message>
        <source>config takes one key; see config --check</source>
        <translation>config принимает один ключ; см. config --check</translation>
    </message>
    <message>
        <source>connected: %1</source>
        <translation>подключено: %1</translation>
    </message>
    <message>
        <source>connecting: %1: %2</source>
        <translation>подключение: %1: %2</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>подключение</translation>
    </message>
    <message>
        <source>customise name</source>
        <translation>имя конфигурации</translation>
    </message>
    <message>
        <source>data-service user</source>
        <translation>пользователь услуги</translation>
    </message>
    <message>
        <source>default takes a name or --clear, not both</source>
        <translation>default принимает имя или --clear, но не оба</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>отказано</translation>
    </message>
    <message>
        <source>dials as CDMA</source>
        <translation>дозвон как CDMA</translation>
    </message>
    <message>
        <source>disconnected: %1</source>
        <translation>отключено: %1</translation>
    </message>
    <message>
        <source>disconnecting: %1</source>
        <translation>отключение: %1</translation>
    </message>
    <message>
        <source>export takes names or --all</source>
        <translation>export принимает имена или --all</translation>
    </message>
    <message>
        <source>exported %1 to %2</source>
        <translation>%1 экспортировано в %2</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>сбой</translation>
    </message>
    <message>
        <source>generation</source>
        <translation>поколение</translation>
    </message>
    <message>
        <source>home</source>
        <translation>домашняя сеть</translation>
    </message>
    <message>
        <source>how %1 tells a balance is not known; see orbisctl ussd CODE</source>
        <translation>как %1 сообщает баланс, неизвестно; см. orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>how many attempts are left is not known</source>
        <translation>число оставшихся попыток неизвестно</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>не ведётся</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>%1 импортирован</translation>
    </message>
    <message>
        <source>letters, digits, dots and hyphens</source>
        <translation>буквы, цифры, точки и дефисы</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>блокировка</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>заблокирован</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>изготовитель</translation>
    </message>
    <message>
        <source>matched IMSI prefix</source>
        <translation>найденный префикс IMSI</translation>
    </message>
    <message>
        <source>model</source>
        <translation>модель</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>модем</translation>
    </message>
    <message>
        <source>multi-mode card</source>
        <translation>многорежимная карта</translation>
    </message>
    <message>
        <source>neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE</source>
        <translation>ни по профилю, ни по SIM-карте оператора не узнать; см. orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>network</source>
        <translation>сеть</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>код сети</translation>
    </message>
    <message>
        <source>new name</source>
        <translation>новое имя</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>no command is given; see orbisctl --help</source>
        <translation>команда не указана; см. orbisctl --help</translation>
    </message>
    <message>
        <source>no connection in time</source>
        <translation>нет подключения за отведённое время</translation>
    </message>
    <message>
        <source>no event counter can be had: %1</source>
        <translation>не удаётся получить счётчик событий: %1</translation>
    </message>
    <message>
        <source>no language "%1"; there are: %2</source>
        <translation>нет языка «%1»; есть: %2</translation>
    </message>
    <message>
        <source>no page "%1"; there are: %2</source>
        <translation>нет страницы «%1»; есть: %2</translation>
    </message>
    <message>
        <source>no temporary folder: %1</source>
        <translation>нет временной папки: %1</translation>
    </message>
    <message>
        <source>no-modem</source>
        <translation>нет модема</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>не подключено</translation>
    </message>
    <message>
        <source>not connected: %1</source>
        <translation>не подключено: %1</translation>
    </message>
    <message>
        <source>not connected; the modem is in use by %1</source>
        <translation>не подключено; модем занят: %1</translation>
    </message>
    <message>
        <source>note</source>
        <translation>примечание</translation>
    </message>
    <message>
        <source>nothing can tell of connections</source>
        <translation>сведений о подключениях получить неоткуда</translation>
    </message>
    <message>
        <source>nothing can tell of modems</source>
        <translation>сведений о модемах получить неоткуда</translation>
    </message>
    <message>
        <source>nothing has been counted yet</source>
        <translation>пока ничего не подсчитано</translation>
    </message>
    <message>
        <source>nothing was imported from %1</source>
        <translation>из %1 ничего не импортировано</translation>
    </message>
    <message>
        <source>nothing was sent: %1 tells a balance by message or phone alone</source>
        <translation>ничего не отправлено: %1 сообщает баланс только по SMS или телефону</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключено</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включено</translation>
    </message>
    <message>
        <source>on, roaming too</source>
        <translation>включено, в том числе в роуминге</translation>
    </message>
    <message>
        <source>only one of these goes at a time: %1</source>
        <translation>можно указать только одно из этого: %1</translation>
    </message>
    <message>
        <source>other</source>
        <translation>другая</translation>
    </message>
    <message>
        <source>others can read a password on the command line in the list of processes; use password=-</source>
        <translation>пароль из командной строки видно другим в списке процессов; используйте password=-</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>свой номер</translation>
    </message>
    <message>
        <source>password</source>
        <translation>пароль</translation>
    </message>
    <message>
        <source>password: only Latin-1 characters can be stored sealed</source>
        <translation>password: в зашифрованном виде хранятся только символы Latin-1</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>port</source>
        <translation>порт</translation>
    </message>
    <message>
        <source>present</source>
        <translation>есть</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>готовый</translation>
    </message>
    <message>
        <source>preset, default</source>
        <translation>готовый, основной</translation>
    </message>
    <message>
        <source>product type (1 is CDMA)</source>
        <translation>тип устройства (1 — CDMA)</translation>
    </message>
    <message>
        <source>profiles restored: %1</source>
        <translation>профилей восстановлено: %1</translation>
    </message>
    <message>
        <source>profiles saved to %1: %2</source>
        <translation>профилей сохранено в %1: %2</translation>
    </message>
    <message>
        <source>proposed default</source>
        <translation>предложенный основной</translation>
    </message>
    <message>
        <source>proposed for</source>
        <translation>предложен для</translation>
    </message>
    <message>
        <source>puk</source>
        <translation>PUK</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>готов</translation>
    </message>
    <message>
        <source>registration</source>
        <translation>регистрация в сети</translation>
    </message>
    <message>
        <source>replaced %1</source>
        <translation>%1 заменён</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>роуминг</translation>
    </message>
    <message>
        <source>same     %1</source>
        <translation>%1 без изменений</translation>
    </message>
    <message>
        <source>say on or off, not %1</source>
        <translation>укажите on или off, а не %1</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>поиск</translation>
    </message>
    <message>
        <source>signal in percent</source>
        <translation>сигнал в процентах</translation>
    </message>
    <message>
        <source>skipped  %1 (exists; see --replace)</source>
        <translation>%1 пропущен (уже есть; см. --replace)</translation>
    </message>
    <message>
        <source>standard input can't be read</source>
        <translation>не удаётся прочитать стандартный ввод</translation>
    </message>
    <message>
        <source>standard input can't be read: %1</source>
        <translation>не удаётся прочитать стандартный ввод: %1</translation>
    </message>
    <message>
        <source>starting</source>
        <translation>запускается</translation>
    </message>
    <message>
        <source>state</source>
        <translation>состояние</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>код %1</translation>
    </message>
    <message>
        <source>status (3 is ready)</source>
        <translation>состояние (3 — готов)</translation>
    </message>
    <message>
        <source>system mode</source>
        <translation>режим системы</translation>
    </message>
    <message>
        <source>system sub-mode</source>
        <translation>подрежим системы</translation>
    </message>
    <message>
        <source>takes USSD commands</source>
        <translation>принимает USSD-команды</translation>
    </message>
    <message>
        <source>technology</source>
        <translation>технология</translation>
    </message>
    <message>
        <source>text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>the backup can't be read</source>
        <translation>резервную копию нельзя прочитать</translation>
    </message>
    <message>
        <source>the card asks for its %1; see orbisctl %2</source>
        <translation>карта запрашивает %1-код; см. orbisctl %2</translation>
    </message>
    <message>
        <source>the card asks for no %1</source>
        <translation>карта не запрашивает %1-код</translation>
    </message>
    <message>
        <source>the card can't be unlocked</source>
        <translation>карту нельзя разблокировать</translation>
    </message>
    <message>
        <source>the card does not answer; whether it took the code is not known</source>
        <translation>карта не отвечает; принят ли код, неизвестно</translation>
    </message>
    <message>
        <source>the card is locked in a way that neither PIN nor PUK opens</source>
        <translation>карта заблокирована так, что ни PIN-, ни PUK-код не поможет</translation>
    </message>
    <message>
        <source>the card is unlocked</source>
        <translation>карта разблокирована</translation>
    </message>
    <message>
        <source>the card takes no code now</source>
        <translation>карта сейчас не принимает код</translation>
    </message>
    <message>
        <source>the card's operator name %1 tells none of these</source>
        <translation>по имени оператора на карте, %1, ни один не выбран</translation>
    </message>
    <message>
        <source>the choice can't be kept in the settings</source>
        <translation>выбор нельзя сохранить в настройках</translation>
    </message>
    <message>
        <source>the configuration customised for %1 leaves no presets by IMSI</source>
        <translation>в конфигурации для %1 нет готовых профилей по IMSI</translation>
    </message>
    <message>
        <source>the configuration has no presets by IMSI</source>
        <translation>в конфигурации нет готовых профилей по IMSI</translation>
    </message>
    <message>
        <source>the connection can't be ended</source>
        <translation>подключение нельзя завершить</translation>
    </message>
    <message>
        <source>the connection has not ended yet</source>
        <translation>подключение ещё не завершено</translation>
    </message>
    <message>
        <source>the connection of %1 is not ours to end</source>
        <translation>подключение %1 не наше, завершить его нельзя</translation>
    </message>
    <message>
        <source>the connection was ended elsewhere</source>
        <translation>подключение завершено другой программой</translation>
    </message>
    <message>
        <source>the data folder %1 can't be made or entered</source>
        <translation>папку данных %1 нельзя создать или открыть</translation>
    </message>
    <message>
        <source>the data folder %1 is not a folder</source>
        <translation>папка данных %1 — не папка</translation>
    </message>
    <message>
        <source>the data volume can't be stored</source>
        <translation>объём данных нельзя сохранить</translation>
    </message>
    <message>
        <source>the default can't be cleared</source>
        <translation>нельзя отменить выбор основного профиля</translation>
    </message>
    <message>
        <source>the default can't be restored</source>
        <translation>нельзя восстановить выбор основного профиля</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>нельзя назначить основной профиль</translation>
    </message>
    <message>
        <source>the field %1 is given twice</source>
        <translation>поле %1 указано дважды</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>файл нельзя импортировать</translation>
    </message>
    <message>
        <source>the file's name is empty</source>
        <translation>имя файла пустое</translation>
    </message>
    <message>
        <source>the limit can't be stored</source>
        <translation>лимит нельзя сохранить</translation>
    </message>
    <message>
        <source>the modem does not answer</source>
        <translation>модем не отвечает</translation>
    </message>
    <message>
        <source>the modem is not ready for a command, or another one is under way</source>
        <translation>модем не готов к команде, или выполняется другая</translation>
    </message>
    <message>
        <source>the modem's backend can't be had</source>
        <translation>серверная часть модема недоступна</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>имя пустое; см. default --clear</translation>
    </message>
    <message>
        <source>the network did not answer in time</source>
        <translation>сеть не ответила вовремя</translation>
    </message>
    <message>
        <source>the new profile's name is the first argument</source>
        <translation>имя нового профиля — первый аргумент</translation>
    </message>
    <message>
        <source>the password of %1 is not base64, as its encrypttype says; set it again</source>
        <translation>пароль %1 не в base64, как указано в encrypttype; задайте его заново</translation>
    </message>
    <message>
        <source>the profile can't be added</source>
        <translation>профиль нельзя добавить</translation>
    </message>
    <message>
        <source>the profile can't be changed</source>
        <translation>профиль нельзя изменить</translation>
    </message>
    <message>
        <source>the profile can't be deleted</source>
        <translation>профиль нельзя удалить</translation>
    </message>
    <message>
        <source>the profile library does not hold the preset %1</source>
        <translation>в библиотеке профилей нет готового профиля %1</translation>
    </message>
    <message>
        <source>the profiles can't be changed</source>
        <translation>профили нельзя изменить</translation>
    </message>
    <message>
        <source>the profiles can't be exported</source>
        <translation>профили нельзя экспортировать</translation>
    </message>
    <message>
        <source>the profiles can't be imported</source>
        <translation>профили нельзя импортировать</translation>
    </message>
    <message>
        <source>the profiles can't be listed</source>
        <translation>профили нельзя перечислить</translation>
    </message>
    <message>
        <source>the profiles can't be restored</source>
        <translation>профили нельзя восстановить</translation>
    </message>
    <message>
        <source>the profiles can't be stored</source>
        <translation>профили нельзя сохранить</translation>
    </message>
    <message>
        <source>the session has ended</source>
        <translation>сеанс завершён</translation>
    </message>
    <message>
        <source>the settings can't be stored</source>
        <translation>настройки нельзя сохранить</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>настройки автоматического подключения нельзя сохранить</translation>
    </message>
    <message>
        <source>the two PINs differ</source>
        <translation>PIN-коды не совпадают</translation>
    </message>
    <message>
        <source>there are no profiles %1</source>
        <translation>нет профилей %1</translation>
    </message>
    <message>
        <source>there is a profile %1 already</source>
        <translation>профиль %1 уже есть</translation>
    </message>
    <message>
        <source>there is no SIM card</source>
        <translation>SIM-карты нет</translation>
    </message>
    <message>
        <source>there is no configuration key %1</source>
        <translation>нет ключа конфигурации %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>основной профиль не задан; укажите имя: orbisctl connect NAME</translation>
    </message>
    <message>
        <source>there is no field %1; there are: %2</source>
        <translation>нет поля %1; есть: %2</translation>
    </message>
    <message>
        <source>there is no modem</source>
        <translation>модема нет</translation>
    </message>
    <message>
        <source>there is no modem %1; see orbisctl modems</source>
        <translation>нет модема %1; см. orbisctl modems</translation>
    </message>
    <message>
        <source>there is no profile %1</source>
        <translation>нет профиля %1</translation>
    </message>
    <message>
        <source>there is no profile of one's own</source>
        <translation>нет ни одного своего профиля</translation>
    </message>
    <message>
        <source>this user may not unlock the card</source>
        <translation>у этого пользователя нет прав разблокировать карту</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true или false</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>лишний аргумент: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>неизвестная команда %1; см. orbisctl --help</translation>
    </message>
    <message>
        <source>unknown device %1; use one of %2</source>
        <translation>неизвестное устройство %1; возможны: %2</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>использование: %1</translation>
    </message>
    <message>
        <source>user</source>
        <translation>свой</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>имя пользователя</translation>
    </message>
    <message>
        <source>user, default</source>
        <translation>свой, основной</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>предупреждение: %1</translation>
    </message>
    <message>
        <source>what was counted can't be read, or is damaged</source>
        <translation>подсчитанное нельзя прочитать, или оно повреждено</translation>
    </message>
    <message>
        <source>wrong %1: %2</source>
        <translation>неверный %1-код: %2</translation>
    </message>
    <message>
        <source>wrong %1: nothing opens the card any more</source>
        <translation>неверный %1-код: карту больше ничем не разблокировать</translation>
    </message>
    <message>
        <source>wrong %1: the card now asks for its PUK</source>
        <translation>неверный %1-код: теперь карта запрашивает PUK-код</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
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
        <translation>%1: не больше %2 символов</translation>
    </message>
    <message>
        <source>%1: control characters can't be stored</source>
        <translation>%1: управляющие символы сохранить нельзя</translation>
    </message>
    <message>
        <source>%1: may hold letters, digits, dots and hyphens</source>
        <translation>%1: допустимы буквы, цифры, точки и дефисы</translation>
    </message>
    <message>
        <source>%1: must be empty or an IPv4 address such as 192.0.2.1</source>
        <translation>%1: должно быть пустым или IPv4-адресом вида 192.0.2.1</translation>
    </message>
    <message>
        <source>%1: must be true or false</source>
        <translation>%1: должно быть true или false</translation>
    </message>
    <message>
        <source>Mobile broadband is switched off</source>
        <translation>Мобильная широкополосная связь выключена</translation>
    </message>
    <message>
        <source>NetworkManager can't use the modem now</source>
        <translation>NetworkManager сейчас не может использовать модем</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager не отвечает</translation>
    </message>
    <message>
        <source>ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto</source>
        <translation>ORBISDIAL_DEVICE не указывает серверную часть; возможны simulated, modemmanager, none и auto</translation>
    </message>
    <message>
        <source>a link in a folder where others may have put it is not followed: %1</source>
        <translation>ссылка, которую могли положить в папку другие, не открывается: %1</translation>
    </message>
    <message>
        <source>a name has at most %1 characters</source>
        <translation>в имени не больше %1 символов</translation>
    </message>
    <message>
        <source>a name must not contain any of %1</source>
        <translation>имя не должно содержать символов %1</translation>
    </message>
    <message>
        <source>a name must not contain control characters</source>
        <translation>имя не должно содержать управляющих символов</translation>
    </message>
    <message>
        <source>a password can't be sealed</source>
        <translation>пароль нельзя зашифровать</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>профилю нужно имя</translation>
    </message>
    <message>
        <source>a profile needs an access number, for example phonenumber=*99#</source>
        <translation>профилю нужен номер дозвона, например phonenumber=*99#</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>у элемента больше %1 атрибутов</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>файл заблокирован другой программой</translation>
    </message>
    <message>
        <source>apn: must begin and end with a letter or a digit</source>
        <translation>apn: должен начинаться и заканчиваться буквой или цифрой</translation>
    </message>
    <message>
        <source>can't be locked</source>
        <translation>нельзя заблокировать</translation>
    </message>
    <message>
        <source>can't be locked: it is not a regular file</source>
        <translation>нельзя заблокировать: это не обычный файл</translation>
    </message>
    <message>
        <source>can't be looked at</source>
        <translation>нет доступа</translation>
    </message>
    <message>
        <source>can't be opened</source>
        <translation>не удаётся открыть</translation>
    </message>
    <message>
        <source>can't be read now; what was last read of it stays in force</source>
        <translation>сейчас не читается; действует прочитанное в последний раз</translation>
    </message>
    <message>
        <source>can't be read: %1</source>
        <translation>не удаётся прочитать: %1</translation>
    </message>
    <message>
        <source>can't be written as XML</source>
        <translation>нельзя записать в виде XML</translation>
    </message>
    <message>
        <source>can't close</source>
        <translation>не удаётся закрыть</translation>
    </message>
    <message>
        <source>can't create a file in the folder</source>
        <translation>в папке нельзя создать файл</translation>
    </message>
    <message>
        <source>can't enter the folder</source>
        <translation>нет доступа к папке</translation>
    </message>
    <message>
        <source>can't enter the root folder</source>
        <translation>нет доступа к корневой папке</translation>
    </message>
    <message>
        <source>can't flush to disk</source>
        <translation>не удаётся сбросить на диск</translation>
    </message>
    <message>
        <source>can't look at the folder</source>
        <translation>нет доступа к папке</translation>
    </message>
    <message>
        <source>can't read a link</source>
        <translation>не удаётся прочитать ссылку</translation>
    </message>
    <message>
        <source>can't replace</source>
        <translation>не удаётся заменить</translation>
    </message>
    <message>
        <source>can't set the file's mode</source>
        <translation>нельзя задать права доступа к файлу</translation>
    </message>
    <message>
        <source>can't set the file's owner</source>
        <translation>нельзя задать владельца файла</translation>
    </message>
    <message>
        <source>can't write</source>
        <translation>не удаётся записать</translation>
    </message>
    <message>
        <source>elements stand more than %1 deep in one another</source>
        <translation>глубина вложения элементов больше %1</translation>
    </message>
    <message>
        <source>every name for a copy of the damaged file is taken</source>
        <translation>все имена для копии повреждённого файла заняты</translation>
    </message>
    <message>
        <source>is damaged, and can't be kept: %1</source>
        <translation>повреждён, сохранить копию не удалось: %1</translation>
    </message>
    <message>
        <source>is no file's name</source>
        <translation>не имя файла</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>it is too large: %1 of at most %2 MB</source>
        <translation>слишком велик: %1 МБ при пределе %2 МБ</translation>
    </message>
    <message>
        <source>leads to no file</source>
        <translation>не ведёт ни к какому файлу</translation>
    </message>
    <message>
        <source>not written: it would be too large to be read again, %1 of at most %2 MB</source>
        <translation>не записано: файл был бы слишком велик для чтения, %1 МБ при пределе %2 МБ</translation>
    </message>
    <message>
        <source>other programs make and remove it all the time</source>
        <translation>другие программы постоянно создают и удаляют его</translation>
    </message>
    <message>
        <source>profiles can't be exported to this file</source>
        <translation>в этот файл профили экспортировать нельзя</translation>
    </message>
    <message>
        <source>reading failed</source>
        <translation>ошибка чтения</translation>
    </message>
    <message>
        <source>the XML declaration is too long</source>
        <translation>XML-объявление слишком длинное</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: %2</source>
        <translation>серверную часть «%1» нельзя загрузить: %2</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: it belongs to another version</source>
        <translation>серверную часть «%1» нельзя загрузить: она от другой версии</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: there is no %2</source>
        <translation>серверную часть «%1» нельзя загрузить: нет %2</translation>
    </message>
    <message>
        <source>the device backend can't start</source>
        <translation>серверная часть модема не запускается</translation>
    </message>
    <message>
        <source>the document type declares entities or attributes</source>
        <translation>тип документа объявляет сущности или атрибуты</translation>
    </message>
    <message>
        <source>the output can't be written: %1</source>
        <translation>вывод нельзя записать: %1</translation>
    </message>
    <message>
        <source>the process was made by one that uses the modem</source>
        <translation>процесс создан другим, который использует модем</translation>
    </message>
    <message>
        <source>the sealed password of "%1" was changed outside and can't be opened</source>
        <translation>зашифрованный пароль профиля «%1» изменён извне, расшифровать его нельзя</translation>
    </message>
    <message>
        <source>the user data directory can't be had</source>
        <translation>папка данных пользователя недоступна</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>элементов больше %1</translation>
    </message>
    <message>
        <source>there are more than %1 namespaces</source>
        <translation>пространств имён больше %1</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>для этого не хватает памяти</translation>
    </message>
    <message>
        <source>was damaged (%1); the damaged file is kept as %2</source>
        <translation>был повреждён (%1); повреждённый файл сохранён как %2</translation>
    </message>
    <message>
        <source>was removed while the profiles were being changed</source>
        <translation>удалён во время изменения профилей</translation>
    </message>
    <message>
        <source>written, but the folder can't be flushed to disk</source>
        <translation>записано, но папку не удаётся сбросить на диск</translation>
    </message>
</context>
</TS>
