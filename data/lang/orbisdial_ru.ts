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
        <translation>Модем занят: %1. Сначала завершите это соединение.</translation>
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
        <translation>Соединение потеряно. Подключитесь снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>Не удалось начать соединение на этом компьютере. Повторите попытку; возможно, подробности скажут больше.</translation>
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
        <translation>Служба модемов (ModemManager) не запущена. Запустите её или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>Служба соединений (NetworkManager) не запущена. Запустите её или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>Соединение завершено, так как компьютер перешёл в спящий режим. Подключитесь снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>Другая программа заняла модем своим соединением. Завершите его и подключитесь снова.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>Сеть требует имя пользователя и пароль. Введите их для «%1» в настройках.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>Соединение завершено вне этой программы. Подключитесь снова, если оно нужно.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>Соединение завершено в другой программе OrbisDial.</translation>
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
        <translation>Не удалось завершить соединение. Повторите попытку.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>Модем или сеть не принимает такие команды.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>Сеть отклонила команду.</translation>
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
        <translation>Имя профиля «%1» слишком длинное для соединения. Сократите его.</translation>
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
        <translation>Служба модемов не запущена</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial находит модемы через ModemManager. Установите и запустите его.</translation>
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
        <translation>PIN-код слишком часто вводился неверно. Требуется PUK-код, полученный от оператора.</translation>
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
        <source>IDS_HOST_BYTES</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>IDS_HOST_KILOBYTES</source>
        <translation>%1 кБ</translation>
    </message>
    <message>
        <source>IDS_HOST_MEGABYTES</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>IDS_HOST_GIGABYTES</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>IDS_HOST_BITS_PER_SECOND</source>
        <translation>%1 бит/с</translation>
    </message>
    <message>
        <source>IDS_HOST_KILOBITS_PER_SECOND</source>
        <translation>%1 кбит/с</translation>
    </message>
    <message>
        <source>IDS_HOST_MEGABITS_PER_SECOND</source>
        <translation>%1 Мбит/с</translation>
    </message>
    <message>
        <source>IDS_HOST_GIGABITS_PER_SECOND</source>
        <translation>%1 Гбит/с</translation>
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
        <translation>PIN-код слишком часто вводился неверно. Введите PUK-код, полученный от оператора, и задайте новый PIN-код.</translation>
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
    <name>orbisctl</name>
    <message>
        <source>%1 (chosen by the user)</source>
        <translation>%1 (выбран пользователем)</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1 (предложен конфигурацией)</translation>
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
        <source>%1 is a preset</source>
        <translation>%1 — готовый профиль оператора</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 уже подключён; см. orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 доступен только для чтения</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>%1 может означать несколько команд: %2</translation>
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
        <source>%1; give a new one with password=</source>
        <translation>%1; задайте новый с помощью password=</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(скрыт)</translation>
    </message>
    <message>
        <source>(simulated modem)</source>
        <translation>(имитация модема)</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>--timeout принимает число секунд от 1 до 86400</translation>
    </message>
    <message>
        <source>; it ends with this program, see --hold</source>
        <translation>; завершится вместе с программой, см. --hold</translation>
    </message>
    <message>
        <source>; make one of your own from it: %1</source>
        <translation>; создайте на его основе свой: %1</translation>
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
        <source>Password [as stored]: </source>
        <translation>Пароль [сохранённый]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Пароль: </translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>Это имитация модема.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Имя пользователя [%1]: </translation>
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
        <source>can't be dialled with</source>
        <translation>с ним нельзя подключиться</translation>
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
        <source>idle</source>
        <translation>не ведётся</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>%1 импортирован</translation>
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
        <source>network</source>
        <translation>сеть</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>код сети</translation>
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
        <source>nothing was imported from %1</source>
        <translation>из %1 ничего не импортировано</translation>
    </message>
    <message>
        <source>other</source>
        <translation>другая</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>свой номер</translation>
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
        <source>product type (1 is CDMA)</source>
        <translation>тип устройства (1 — CDMA)</translation>
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
        <source>the default can't be cleared</source>
        <translation>нельзя отменить выбор основного профиля</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>нельзя назначить основной профиль</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>файл нельзя импортировать</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>имя пустое; см. default --clear</translation>
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
        <translation>в библиотеке нет готового профиля %1</translation>
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
        <source>the profiles can't be stored</source>
        <translation>профили нельзя сохранить</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>настройки автоматического подключения нельзя сохранить</translation>
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
        <source>there is no configuration key %1</source>
        <translation>нет ключа конфигурации %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>основной профиль не задан; укажите имя: orbisctl connect NAME</translation>
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
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>неизвестная команда %1; см. orbisctl --help</translation>
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
        <source>warning: %1</source>
        <translation>предупреждение: %1</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
</context>
</TS>
