<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>Nombre de usuario y contraseña para «%1»:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>La configuración de la conexión no está cargada.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>No hay ningún perfil por defecto. Elija uno en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>No existe ningún perfil «%1».</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>Se ha cancelado la conexión.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>El módem aún no está listo. Espere un momento y vuelva a intentarlo; si no ayuda, desconéctelo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>La red no responde (sin portadora). Vuelva a intentarlo donde haya mejor cobertura.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>La red rechazó el nombre de usuario o la contraseña de «%1». Corríjalos en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <translation>No hay ningún módem. Conecte uno.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <translation>El módem está en uso por %1. Termine primero esa conexión.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <translation>La tarjeta no tiene servicio de datos para «%1». Compruebe el nombre del punto de acceso (APN) o pregunte a su operador.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <translation>La red rechazó «%1» sin decir por qué. Compruebe el nombre de usuario, la contraseña y el punto de acceso (APN).</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <translation>Se perdió la conexión. Vuelva a conectarse.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>No se pudo iniciar la conexión en este equipo. Vuelva a intentarlo; los detalles quizá digan más.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <translation>El número está ocupado. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <translation>No hay tono de marcado. Compruebe la antena y la tarjeta del módem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <translation>La red no respondió a tiempo. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <translation>La red rechaza el nombre del punto de acceso (APN) de «%1». Corríjalo en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <translation>No se encontró ninguna red. Vuelva a intentarlo donde haya mejor cobertura.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <translation>La red no admite esta tarjeta. Pregunte a su operador si está activa.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <translation>No hay tarjeta SIM en el módem. Inserte una.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <translation>La tarjeta SIM está bloqueada. Introduzca su PIN.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <translation>El módem no acepta esta tarjeta SIM. Use una tarjeta del operador del módem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <translation>El PIN era incorrecto. Introduzca el correcto.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <translation>El módem se retiró o dejó de funcionar. Vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <translation>El servicio de módems (ModemManager) no está en marcha o no responde. Reinícielo o pregunte a su administrador.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>El servicio de conexiones (NetworkManager) no está en marcha o no responde. Reinícielo o pregunte a su administrador.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>La conexión terminó porque el equipo entró en suspensión. Vuelva a conectarse.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>Otro programa tomó el módem para una conexión propia. Termínela y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>La red pide un nombre de usuario y una contraseña. Introdúzcalos para «%1» en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>La conexión se terminó fuera de este programa. Vuelva a conectarse si la necesita.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>La conexión se terminó en otro programa de OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <translation>El módem se quedó bloqueado en una llamada anterior. Desconéctelo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <translation>No tiene permiso para conectarse en este equipo. Pídalo a su administrador.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <translation>Falló la conexión con «%1». Los detalles dicen lo que se sabe.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <translation>No se pudo terminar la conexión. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>El módem o la red no admite estos códigos.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>La red rechazó el código o terminó la sesión.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <translation>La red no respondió.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <translation>La sesión se canceló.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <translation>No tiene permiso para enviar códigos en este equipo. Pídalo a su administrador.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <translation>Falló el envío del código.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <translation>Llame al %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <translation>Envíe el SMS «%2» al %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <translation>Envíe un SMS vacío al %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <translation>El nombre del perfil «%1» es demasiado largo para una conexión. Acórtelo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <translation>El número de acceso de «%1» no es válido. Corríjalo en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <translation>El nombre del punto de acceso (APN) de «%1» no es válido: como máximo 64 letras, dígitos, puntos, guiones y guiones bajos. Corríjalo en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <translation>La dirección IP de «%1» no es válida. Corríjala en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <translation>La dirección del servidor DNS de «%1» no es válida. Corríjala en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <translation>La dirección del servidor DNS alternativo de «%1» no es válida. Corríjala en la configuración.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <translation>El nombre de usuario de «%1» no se puede enviar: como máximo 255 bytes. Acórtelo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <translation>La contraseña de «%1» no se puede enviar: como máximo 255 bytes. Acórtela.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <translation>Preparando el módem</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <translation>Buscando la red, lo que puede tardar un minuto</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <translation>Llamando a la red</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <translation>Solicitando una dirección</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <translation>En uso por %1</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <translation>El número de acceso no tiene efecto: el módem marca el de la red.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <translation>La dirección IP fija no tiene efecto: la red asigna la dirección.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <translation>Los servidores WINS no tienen efecto.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <translation>No se pudo obtener la dirección IP fija; la red asignó %1.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <translation>Se ha consumido el 80 por ciento del volumen de datos de este mes.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <translation>El volumen de datos de este mes se ha agotado.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <translation>La conexión automática espera a que se conecte usted mismo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <translation>La conexión automática espera al módem.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <translation>La conexión automática espera una red.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <translation>La conexión automática no se hace en itinerancia.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <translation>La conexión automática espera a que el módem quede libre.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <translation>La conexión automática lo volverá a intentar pronto.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <translation>La conexión automática se detuvo porque la red rechazó «%1». Corrija el nombre de usuario y la contraseña, o conéctese usted mismo.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <translation>La conexión automática se detuvo: otro intento fallaría igual.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <translation>La conexión automática no puede usar «%1», que pide nombre de usuario y contraseña.</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BYTES</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBYTES</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABYTES</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABYTES</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BITS_PER_SECOND</source>
        <translation>%1 bit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_KILOBITS_PER_SECOND</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MEGABITS_PER_SECOND</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>IDS_DIALUP_GIGABITS_PER_SECOND</source>
        <translation>%1 Gbit/s</translation>
    </message>
</context>
<context>
    <name>NetConnectPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>Acceso telefónico</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>Pe&amp;rfil de conexión</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>Autenticación</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>Protocolo de autenticación</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>&amp;APN:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>N.º de acce&amp;so:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>C&amp;ontraseña:</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>Dinámico</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>Fijo</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>Pregun&amp;tar al conectar</translation>
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
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>&amp;Modificar</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>Usar por de&amp;fecto</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>A&amp;vanzado…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(por defecto)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Configuración de la conexión</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>Escriba un nombre para el perfil.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>Ya existe un perfil con este nombre. Elija otro nombre.</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>El nombre del perfil no puede contener ninguno de estos caracteres: </translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>Escriba el número de acceso, por ejemplo *99#.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>El APN no es válido. Puede contener letras, dígitos, puntos y guiones, y debe empezar y terminar con una letra o un dígito.</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>¿Desea eliminar este perfil?</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>El perfil tiene cambios sin guardar. ¿Desea guardarlos?</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>ya existe. ¿Desea reemplazar este perfil?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>Aplicar la misma respuesta a los perfiles restantes</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>La dirección IP no es válida. Escriba una como 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>La dirección del servidor DNS no es válida. Escriba una como 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>La dirección del servidor WINS no es válida. Escriba una como 192.0.2.1.</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>Importar perfiles</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>Exportar perfiles</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>Perfiles de acceso telefónico</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>Servidores DNS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>Servidores WINS</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>Dirección &amp;IP:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>P&amp;rimario:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>&amp;Secundario:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>Pri&amp;mario:</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>S&amp;ecundario:</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>Perfil nuevo</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>Este perfil es de solo lectura. Para cambiarlo, pulse «Nuevo» e introduzca sus valores con otro nombre.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>Este perfil está predefinido. Para cambiarlo, cierre la configuración y pulse Ctrl+N en la ventana principal: se creará un perfil propio con los mismos valores.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>Este perfil está conectado. Desconéctese primero.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>El perfil por defecto no se puede cambiar durante una conexión. Desconéctese primero.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>Todavía no hay ningún perfil. Pulse «Nuevo» para crear uno.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>Se está modificando un perfil. Pulse primero «Guardar» o «Deshacer».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>No se está modificando ningún perfil. Pulse primero «Nuevo» o «Modificar».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>Este perfil es de solo lectura.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>Este perfil está predefinido.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>Este perfil está conectado.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>No se pudo guardar el perfil. No se ha perdido nada: corrija el problema y vuelva a pulsar «Guardar».</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>Hay caracteres no admitidos: use solo los de Europa occidental.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>Nombre del perfil</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>Perfiles para elegir</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>Un nombre de archivo no puede contener «*». Escriba otro.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>ya existe. Sus perfiles se conservan y los del mismo nombre se reemplazan. ¿Desea exportar a este archivo?</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <translation>La configuración no permite importar.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <translation>El archivo no contiene perfiles.</translation>
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
        <translation>OrbisDial (módem simulado)</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>Páginas de configuración</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>Sin perfil por defecto</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>Conectado con %1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>Desconectando…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>No hay ningún complemento de acceso telefónico cargado</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>Tarjeta SIM %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>Tarjeta SIM %1: perfil predefinido «%2», elegido por su prefijo %3</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <translation>Tarjeta SIM %1: perfil predefinido «%2», elegido por su prefijo %3 y el nombre de su operador, %4</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>Tarjeta SIM %1: el prefijo %2 es conocido, pero ninguno de sus perfiles predefinidos se propone por defecto</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>Tarjeta SIM %1: ningún perfil predefinido coincide</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>Problema de almacenamiento: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>%1 no se puede usar: %2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>no se puede cargar (%1)</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>no es un complemento de este programa</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>otro complemento tiene el mismo identificador</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>no se ha podido iniciar</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>El módem no se puede usar: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>Mantener el perfil por defecto: ocultar el botón «Usar por defecto»</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>No se pudo guardar la configuración.</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>Perfil:</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>Perfil con el que conectar</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>Elija un perfil o escriba una parte de su nombre</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (por defecto)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>Mis perfiles</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>Perfiles predefinidos para esta tarjeta SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>Perfiles predefinidos…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>Perfiles predefinidos de los operadores de todo el mundo</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>País, operador, tarifa, APN o código de red</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>Países, operadores y tarifas</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>País, operador, tarifa</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <translation>Tarifas: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>No se encontró nada. Pruebe con menos palabras o con otra grafía.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>Otros perfiles predefinidos</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <translation>%1 (prepago)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <translation>%1 (contrato)</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>Elija una tarifa para ver sus valores.</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>Usar como perfil nuevo…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>País:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>Operador:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>Tarifa:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>lo elige la red</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>Número de acceso:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>se pide al conectar</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>Autenticación:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>Códigos de red:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <translation>Nuevo a partir de este…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>Perfil nuevo</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <translation>Un perfil propio con los valores de «%1». Puede cambiarlos en la configuración.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>Usar por defecto</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>El perfil por defecto no se puede cambiar durante una conexión.</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <translation>Elegir operador…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>No se conoce ningún perfil predefinido para esta tarjeta SIM. Elija su operador o un perfil de los de abajo.</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>Desbloquear…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <translation>Saldo…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>&amp;Conexión</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>Acerca de OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>Acerca de OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>Un gestor de conexiones para módems de banda ancha móvil.

Licencia MIT. Hecho con Qt %1 (LGPL), libsodium (ISC), ICU (Unicode) y la base de datos de dominio público mobile-broadband-provider-info.</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>Conectar con</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>Mostrar la ventana</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>Falta la parte del programa que establece la conexión. Vuelva a instalar OrbisDial.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>Buscando un módem…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>Esto tarda un momento.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>El servicio de módems no está disponible</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial encuentra los módems mediante ModemManager, que no está en marcha o no responde. Instálelo o reinícielo.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>El servicio de conexiones no está disponible</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>OrbisDial se conecta mediante NetworkManager, que no responde. Reinícielo o pregunte a su administrador.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>Ningún módem</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>Conecte un módem. Algunos tardan medio minuto en detectarse.</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>Sin tarjeta SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>Desconecte el módem, inserte una tarjeta SIM y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>Tarjeta SIM bloqueada</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>Pide su PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>El PIN fue incorrecto demasiadas veces. La tarjeta pide ahora el PUK que le dio su operador.</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>Ni el PIN ni el PUK abren este bloqueo. Consulte a su operador o al vendedor del módem.</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>El módem se está iniciando…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>Estará listo en un momento.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>El módem no está listo</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>Desconéctelo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>No registrado en ninguna red</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>Buscando red…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>La red rechaza esta tarjeta SIM. Consulte a su operador.</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>señal %1&#xa0;%</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>itinerancia</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>Conectando con %1…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>No se pudo conectar</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>No se pudo conectar con %1</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>La conexión con %1 se cortó</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <translation>Se terminó la conexión con %1</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>Transferencia de los últimos tres minutos</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>Este mes: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>Este mes: %1 de %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>Desbloquear la tarjeta SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>Saldo de la tarjeta SIM</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <translation>%1 indica el saldo de una tarjeta de prepago en respuesta al código %2. No se envía nada hasta que pulse «Consultar».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <translation>%1 indica el saldo de esta manera, que debe seguir usted mismo:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>Aquí no se sabe cómo indica el saldo su operador. Si conoce el código, escríbalo; no se envía nada hasta que pulse «Consultar».</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <translation>Consultar</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <translation>Su respuesta:</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>Esperando a la red…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>No hay ningún módem listo que pueda enviar códigos a la red.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>La tarjeta SIM pide su PIN.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>El PIN fue incorrecto demasiadas veces. Introduzca el PUK que le dio su operador y elija un PIN nuevo.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN</source>
        <translation>PIN:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK</source>
        <translation>PUK:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NEW_PIN</source>
        <translation>PIN nuevo:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>Repetir el PIN nuevo:</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>Intentos restantes: %1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>No se sabe cuántos intentos quedan.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>Si este intento falla, la tarjeta pedirá el PUK.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>Si este intento falla, la tarjeta quedará inservible para siempre.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>Usar el último intento</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>La tarjeta lo comprueba…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>El código es incorrecto.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>No tiene permiso para desbloquear la tarjeta. Consulte al administrador de este equipo.</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>No se pudo desbloquear la tarjeta. %1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>Mostrar mensajes sobre la conexión</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>Al cerrar la ventana, dejar el programa en la bandeja del sistema</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>Seguir conectado al salir del programa</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>Límite mensual de datos de esta tarjeta SIM:</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>Está conectado. La conexión terminará con el programa.</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>Está conectado y lo seguirá estando al salir del programa.</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>Módem simulado</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>IMSI:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>sin tarjeta</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>Tarjeta multimodo</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>Modo de tarjeta:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>Tipo de módem:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>Modo de sistema:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>Submodo:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>Llamada:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>Responde</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>Sin portadora</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>Autenticación fallida</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>Sin señal</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>Inicializar</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>Cambiar tarjeta</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>Ajuste:</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>Cortar conexión</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <translation>No se importó nada de %1.
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <translation>Termine primero lo que está abierto y vuelva a abrir el archivo.</translation>
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
        <translation>%1 (elegido por el usuario)</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1 (propuesto por la configuración)</translation>
    </message>
    <message>
        <source>%1 (simulated modem)</source>
        <translation>%1 (módem simulado)</translation>
    </message>
    <message>
        <source>%1 Put -- before a name that begins with a hyphen.</source>
        <translation>%1 Ponga -- delante de un nombre que empiece por un guion.</translation>
    </message>
    <message>
        <source>%1 bytes received, %2 sent</source>
        <translation>%1 bytes recibidos, %2 enviados</translation>
    </message>
    <message>
        <source>%1 holds no profile %2</source>
        <translation>%1 no contiene ningún perfil %2</translation>
    </message>
    <message>
        <source>%1 is a preset; make one of your own from it: %2</source>
        <translation>%1 es un perfil predefinido; cree uno propio a partir de él: %2</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 está conectado; vea orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is being connected; see orbisctl disconnect</source>
        <translation>%1 se está conectando; vea orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is no field to set; fields: %2</source>
        <translation>%1 no es un campo modificable; campos: %2</translation>
    </message>
    <message>
        <source>%1 is no limit; say a volume such as 500MB or 1.5GB</source>
        <translation>%1 no es un límite; indique un volumen como 500MB o 1.5GB</translation>
    </message>
    <message>
        <source>%1 is read-only; make one of your own from it: %2</source>
        <translation>%1 es de solo lectura; cree uno propio a partir de él: %2</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>%1 puede ser más de una orden: %2</translation>
    </message>
    <message>
        <source>%1 names a modem, and counts before the choice</source>
        <translation>%1 indica un módem y prevalece sobre la elección</translation>
    </message>
    <message>
        <source>%1 of %2 were no IMSI, which has 5 to 15 digits</source>
        <translation>no son IMSI (de 5 a 15 dígitos): %1 de %2</translation>
    </message>
    <message>
        <source>%1 percent of the limit of %2</source>
        <translation>%1 por ciento del límite de %2</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1, %2:</translation>
    </message>
    <message>
        <source>%1, at most %2 characters</source>
        <translation>%1, como máximo %2 caracteres</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 received, %3 sent, %4 together</source>
        <translation>%1: %2 recibidos, %3 enviados, %4 en total</translation>
    </message>
    <message>
        <source>%1: can't be written: %2</source>
        <translation>%1: no se puede escribir: %2</translation>
    </message>
    <message>
        <source>%1: does not exist</source>
        <translation>%1: no existe</translation>
    </message>
    <message>
        <source>%1: holds no template for new profiles; see --like</source>
        <translation>%1: no contiene ninguna plantilla para perfiles nuevos; vea --like</translation>
    </message>
    <message>
        <source>%1: is no profile file; --force replaces it</source>
        <translation>%1: no es un archivo de perfiles; --force lo reemplaza</translation>
    </message>
    <message>
        <source>%1: is the user's profile file itself</source>
        <translation>%1: es el propio archivo de perfiles del usuario</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: línea %2: %3</translation>
    </message>
    <message>
        <source>%1: no prefix matches; the configuration's own presets</source>
        <translation>%1: ningún prefijo coincide; los perfiles predefinidos de la configuración</translation>
    </message>
    <message>
        <source>%1: not UTF-8 on standard input</source>
        <translation>%1: no está en UTF-8 en la entrada estándar</translation>
    </message>
    <message>
        <source>%1: not an IMSI</source>
        <translation>%1: no es un IMSI</translation>
    </message>
    <message>
        <source>%1: prefix %2</source>
        <translation>%1: prefijo %2</translation>
    </message>
    <message>
        <source>%1: standard input holds none</source>
        <translation>%1: falta en la entrada estándar</translation>
    </message>
    <message>
        <source>%1; give a new one with password=</source>
        <translation>%1; indique una nueva con password=</translation>
    </message>
    <message>
        <source>%1; it ends with this program, see --hold</source>
        <translation>%1; termina con este programa, vea --hold</translation>
    </message>
    <message>
        <source>%1; then the card asks for its PUK; --last takes it</source>
        <translation>%1; después la tarjeta pedirá su PUK; --last lo usa</translation>
    </message>
    <message>
        <source>%1; then the card is lost; --last takes it</source>
        <translation>%1; después la tarjeta quedará inservible; --last lo usa</translation>
    </message>
    <message>
        <source>%1; waits, since the network refused user name or password</source>
        <translation>%1; en espera, porque la red rechazó el nombre de usuario o la contraseña</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(oculta)</translation>
    </message>
    <message>
        <source>--clear takes no modem</source>
        <translation>--clear no admite ningún módem</translation>
    </message>
    <message>
        <source>--json goes with neither --terse nor --fields</source>
        <translation>--json no se puede usar con --terse ni con --fields</translation>
    </message>
    <message>
        <source>--roaming goes with on</source>
        <translation>--roaming solo se usa con on</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>--timeout admite un número de segundos de 1 a 86400</translation>
    </message>
    <message>
        <source>A profile file to import; the window asks first.</source>
        <translation>Un archivo de perfiles que importar; la ventana pregunta antes.</translation>
    </message>
    <message>
        <source>Add a profile. password=- reads the password from standard input.</source>
        <translation>Añadir un perfil. password=- lee la contraseña de la entrada estándar.</translation>
    </message>
    <message>
        <source>All profiles of one's own.</source>
        <translation>Todos los perfiles propios.</translation>
    </message>
    <message>
        <source>Answer (none ends the session): </source>
        <translation>Respuesta (vacía para terminar la sesión): </translation>
    </message>
    <message>
        <source>Ask the network for a prepaid card's balance.</source>
        <translation>Consultar en la red el saldo de una tarjeta de prepago.</translation>
    </message>
    <message>
        <source>Change fields of a profile; name=NEW renames it.</source>
        <translation>Modificar campos de un perfil; name=NUEVO lo renombra.</translation>
    </message>
    <message>
        <source>Command-line client of the OrbisDial connection manager.</source>
        <translation>Cliente de línea de órdenes del gestor de conexiones OrbisDial.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Connect with a profile, or with the default.</source>
        <translation>Conectar con un perfil o con el perfil por defecto.</translation>
    </message>
    <message>
        <source>Connection manager for mobile-broadband modems.</source>
        <translation>Gestor de conexiones para módems de banda ancha móvil.</translation>
    </message>
    <message>
        <source>Delete profiles: all of them, or none.</source>
        <translation>Eliminar perfiles: todos los indicados o ninguno.</translation>
    </message>
    <message>
        <source>End the connection, or give it up.</source>
        <translation>Terminar la conexión o cancelarla.</translation>
    </message>
    <message>
        <source>Export profiles into a file; others that it holds stay.</source>
        <translation>Exportar perfiles a un archivo; los demás que contenga se conservan.</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>Campos:</translation>
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
        <translation>Importar todos los perfiles de un archivo o los indicados.</translation>
    </message>
    <message>
        <source>Keep the user's profiles in this folder.</source>
        <translation>Guardar los perfiles del usuario en esta carpeta.</translation>
    </message>
    <message>
        <source>List all profiles; * marks the default.</source>
        <translation>Listar todos los perfiles; * marca el perfil por defecto.</translation>
    </message>
    <message>
        <source>List the modems; * marks the one in use.</source>
        <translation>Listar los módems; * marca el que está en uso.</translation>
    </message>
    <message>
        <source>New PIN again: </source>
        <translation>Repetir el PIN nuevo: </translation>
    </message>
    <message>
        <source>New PIN: </source>
        <translation>PIN nuevo: </translation>
    </message>
    <message>
        <source>Open the settings at this page: its title or its plug-in's name.</source>
        <translation>Abrir la configuración en esta página: su título o el nombre de su complemento.</translation>
    </message>
    <message>
        <source>PIN (%1): </source>
        <translation>PIN (%1): </translation>
    </message>
    <message>
        <source>PUK (%1): </source>
        <translation>PUK (%1): </translation>
    </message>
    <message>
        <source>Password [as stored]: </source>
        <translation>Contraseña [la guardada]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Contraseña: </translation>
    </message>
    <message>
        <source>Replace a file even if it holds something else than profiles.</source>
        <translation>Reemplazar un archivo aunque contenga algo que no sean perfiles.</translation>
    </message>
    <message>
        <source>Replace profiles whose names exist; without it they are skipped.</source>
        <translation>Reemplazar los perfiles cuyo nombre exista; si no, se omiten.</translation>
    </message>
    <message>
        <source>Save all profiles of one's own, and the chosen default, in a file.</source>
        <translation>Guardar en un archivo todos los perfiles propios y el elegido por defecto.</translation>
    </message>
    <message>
        <source>See orbisctl COMMAND --help.</source>
        <translation>Vea orbisctl COMMAND --help.</translation>
    </message>
    <message>
        <source>Send a command such as *100# to the network and show its answer.</source>
        <translation>Enviar un código como *100# a la red y mostrar su respuesta.</translation>
    </message>
    <message>
        <source>Show a value of the function configuration, or all.</source>
        <translation>Mostrar un valor de la configuración de funciones o todos.</translation>
    </message>
    <message>
        <source>Show each month that is kept.</source>
        <translation>Mostrar cada mes conservado.</translation>
    </message>
    <message>
        <source>Show the connection.</source>
        <translation>Mostrar la conexión.</translation>
    </message>
    <message>
        <source>Show the default profile, or choose it.</source>
        <translation>Mostrar el perfil por defecto o elegirlo.</translation>
    </message>
    <message>
        <source>Show the fields of profiles.</source>
        <translation>Mostrar los campos de perfiles.</translation>
    </message>
    <message>
        <source>Show the modem in use, or choose one by its key, IMEI or port.</source>
        <translation>Mostrar el módem en uso o elegir uno por su clave, IMEI o puerto.</translation>
    </message>
    <message>
        <source>Show the password too.</source>
        <translation>Mostrar también la contraseña.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>Show this help, or that of a command.</source>
        <translation>Mostrar esta ayuda o la de una orden.</translation>
    </message>
    <message>
        <source>Show what the SIM card moved this month, or set its limit.</source>
        <translation>Mostrar lo que la tarjeta SIM ha transferido este mes, o fijar su límite.</translation>
    </message>
    <message>
        <source>Show what the modem and its SIM card report, and the connection.</source>
        <translation>Mostrar lo que indican el módem y su tarjeta SIM, y la conexión.</translation>
    </message>
    <message>
        <source>Speak this language, e.g. "de" or "zh_CN".</source>
        <translation>Usar este idioma, p. ej. «de» o «zh_CN».</translation>
    </message>
    <message>
        <source>Spend the last attempt, too.</source>
        <translation>Usar también el último intento.</translation>
    </message>
    <message>
        <source>Start from this profile instead of the template for new ones.</source>
        <translation>Partir de este perfil y no de la plantilla para perfiles nuevos.</translation>
    </message>
    <message>
        <source>Start in the desktop's tray, without a window, where there is one.</source>
        <translation>Iniciar en la bandeja del sistema, sin ventana, si la hay.</translation>
    </message>
    <message>
        <source>Stay, and hang up on Ctrl-C.</source>
        <translation>Permanecer y desconectar con Ctrl-C.</translation>
    </message>
    <message>
        <source>Stay, and show each change.</source>
        <translation>Permanecer y mostrar cada cambio.</translation>
    </message>
    <message>
        <source>Take profiles and default from a backup; those of other names stay.</source>
        <translation>Recuperar de una copia los perfiles y el elegido por defecto; los demás se conservan.</translation>
    </message>
    <message>
        <source>Take the choice back.</source>
        <translation>Anular la elección.</translation>
    </message>
    <message>
        <source>Take the limit away.</source>
        <translation>Quitar el límite.</translation>
    </message>
    <message>
        <source>Tell what is wrong with the shipped files, or with these.</source>
        <translation>Decir qué está mal en los archivos incluidos o en estos.</translation>
    </message>
    <message>
        <source>Tell which presets SIM cards select; - reads IMSIs from standard input.</source>
        <translation>Decir qué perfiles predefinidos eligen las tarjetas SIM; - lee los IMSI de la entrada estándar.</translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>Este es un módem simulado.</translation>
    </message>
    <message>
        <source>Unlock the SIM card with its PUK and set a new PIN, a line each.</source>
        <translation>Desbloquear la tarjeta SIM con su PUK y poner un PIN nuevo, cada uno en una línea.</translation>
    </message>
    <message>
        <source>Unlock the SIM card; the PIN is asked for, or read from standard input.</source>
        <translation>Desbloquear la tarjeta SIM; el PIN se pide o se lee de la entrada estándar.</translation>
    </message>
    <message>
        <source>Use this modem: %1.</source>
        <translation>Usar este módem: %1.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Nombre de usuario [%1]: </translation>
    </message>
    <message>
        <source>Wait no longer than so many seconds.</source>
        <translation>No esperar más que estos segundos.</translation>
    </message>
    <message>
        <source>Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB.</source>
        <translation>Avisar al 80 y al 100 por ciento de este volumen al mes, como 500MB o 1.5GB.</translation>
    </message>
    <message>
        <source>What the SIM cards call their operator.</source>
        <translation>Cómo llaman las tarjetas SIM a su operador.</translation>
    </message>
    <message>
        <source>Whether the window connects with a profile by itself.</source>
        <translation>Si la ventana conecta por sí misma con un perfil.</translation>
    </message>
    <message>
        <source>While roaming, too.</source>
        <translation>También en itinerancia.</translation>
    </message>
    <message>
        <source>Write a picture of the window as a PNG file, and end.</source>
        <translation>Guardar una imagen de la ventana en un archivo PNG y terminar.</translation>
    </message>
    <message>
        <source>Write results as JSON, one object a line.</source>
        <translation>Escribir los resultados en JSON, un objeto por línea.</translation>
    </message>
    <message>
        <source>Write results as fields between tabs, for scripts.</source>
        <translation>Escribir los resultados en campos separados por tabuladores, para scripts.</translation>
    </message>
    <message>
        <source>Write these fields only, in this order; their names are those of --json.</source>
        <translation>Escribir solo estos campos, en este orden; sus nombres son los de --json.</translation>
    </message>
    <message>
        <source>Write traces to standard error.</source>
        <translation>Escribir trazas en la salida de error estándar.</translation>
    </message>
    <message>
        <source>a PIN has 4 to 8 digits</source>
        <translation>un PIN tiene de 4 a 8 dígitos</translation>
    </message>
    <message>
        <source>a PUK has 8 digits</source>
        <translation>un PUK tiene 8 dígitos</translation>
    </message>
    <message>
        <source>a picture is taken without a file to import</source>
        <translation>la imagen se hace sin archivo que importar</translation>
    </message>
    <message>
        <source>an IPv4 address, or nothing</source>
        <translation>una dirección IPv4 o nada</translation>
    </message>
    <message>
        <source>an argument is not FIELD=VALUE; fields: %1</source>
        <translation>un argumento no es CAMPO=VALOR; campos: %1</translation>
    </message>
    <message>
        <source>an option's value is empty</source>
        <translation>el valor de una opción está vacío</translation>
    </message>
    <message>
        <source>argument %1 is not UTF-8</source>
        <translation>el argumento %1 no está en UTF-8</translation>
    </message>
    <message>
        <source>attempts left: %1</source>
        <translation>intentos restantes: %1</translation>
    </message>
    <message>
        <source>attempts to unlock</source>
        <translation>intentos restantes</translation>
    </message>
    <message>
        <source>automatically</source>
        <translation>automáticamente</translation>
    </message>
    <message>
        <source>backend</source>
        <translation>motor</translation>
    </message>
    <message>
        <source>by the card's operator name %1: %2</source>
        <translation>según el nombre de operador de la tarjeta, %1: %2</translation>
    </message>
    <message>
        <source>can't be dialled with</source>
        <translation>no permite marcar</translation>
    </message>
    <message>
        <source>can't write the picture %1</source>
        <translation>no se puede escribir la imagen %1</translation>
    </message>
    <message>
        <source>no limit is set</source>
        <translation>no hay límite establecido</translation>
    </message>
    <message>
        <source>no window can be opened: %1</source>
        <translation>no se puede abrir ninguna ventana: %1</translation>
    </message>
    <message>
        <source>card</source>
        <translation>tarjeta</translation>
    </message>
    <message>
        <source>card mode (2 is CDMA)</source>
        <translation>modo de tarjeta (2: CDMA)</translation>
    </message>
    <message>
        <source>card's operator</source>
        <translation>operador de la tarjeta</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>elegido</translation>
    </message>
    <message>
        <source>chosen, not plugged in</source>
        <translation>elegido, no conectado</translation>
    </message>
    <message>
        <source>complete is for the shells' completions</source>
        <translation>complete sirve para el autocompletado de los shells</translation>
    </message>
    <message>
        <source>config takes one key; see config --check</source>
        <translation>config admite una sola clave; vea config --check</translation>
    </message>
    <message>
        <source>connected: %1</source>
        <translation>conectado: %1</translation>
    </message>
    <message>
        <source>connecting: %1: %2</source>
        <translation>conectando: %1: %2</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>conexión</translation>
    </message>
    <message>
        <source>customise name</source>
        <translation>nombre de personalización</translation>
    </message>
    <message>
        <source>data-service user</source>
        <translation>usuario del servicio</translation>
    </message>
    <message>
        <source>default takes a name or --clear, not both</source>
        <translation>default admite un nombre o --clear, no ambos</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>denegado</translation>
    </message>
    <message>
        <source>dials as CDMA</source>
        <translation>marca como CDMA</translation>
    </message>
    <message>
        <source>disconnected: %1</source>
        <translation>desconectado: %1</translation>
    </message>
    <message>
        <source>disconnecting: %1</source>
        <translation>desconectando: %1</translation>
    </message>
    <message>
        <source>export takes names or --all</source>
        <translation>export admite nombres o --all</translation>
    </message>
    <message>
        <source>exported %1 to %2</source>
        <translation>%1 exportado a %2</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>averiado</translation>
    </message>
    <message>
        <source>generation</source>
        <translation>generación</translation>
    </message>
    <message>
        <source>home</source>
        <translation>red propia</translation>
    </message>
    <message>
        <source>how %1 tells a balance is not known; see orbisctl ussd CODE</source>
        <translation>no se sabe cómo indica el saldo %1; vea orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>how many attempts are left is not known</source>
        <translation>no se sabe cuántos intentos quedan</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactivo</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>%1 importado</translation>
    </message>
    <message>
        <source>letters, digits, dots and hyphens</source>
        <translation>letras, dígitos, puntos y guiones</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>bloqueo</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueado</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>fabricante</translation>
    </message>
    <message>
        <source>matched IMSI prefix</source>
        <translation>prefijo IMSI hallado</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modelo</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>módem</translation>
    </message>
    <message>
        <source>multi-mode card</source>
        <translation>tarjeta multimodo</translation>
    </message>
    <message>
        <source>neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE</source>
        <translation>ni el perfil ni la tarjeta SIM indican el operador; vea orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>network</source>
        <translation>red</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>código de la red</translation>
    </message>
    <message>
        <source>new name</source>
        <translation>nombre nuevo</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>no command is given; see orbisctl --help</source>
        <translation>falta la orden; vea orbisctl --help</translation>
    </message>
    <message>
        <source>no connection in time</source>
        <translation>sin conexión dentro del plazo</translation>
    </message>
    <message>
        <source>no event counter can be had: %1</source>
        <translation>no hay ningún contador de eventos disponible: %1</translation>
    </message>
    <message>
        <source>no language "%1"; there are: %2</source>
        <translation>no existe el idioma «%1»; hay: %2</translation>
    </message>
    <message>
        <source>no page "%1"; there are: %2</source>
        <translation>no existe la página «%1»; hay: %2</translation>
    </message>
    <message>
        <source>no temporary folder: %1</source>
        <translation>no hay carpeta temporal: %1</translation>
    </message>
    <message>
        <source>no-modem</source>
        <translation>sin módem</translation>
    </message>
    <message>
        <source>none</source>
        <translation>no hay</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>not connected: %1</source>
        <translation>sin conexión: %1</translation>
    </message>
    <message>
        <source>not connected; the modem is in use by %1</source>
        <translation>sin conexión; el módem está en uso por %1</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>nothing can tell of connections</source>
        <translation>nada informa de las conexiones</translation>
    </message>
    <message>
        <source>nothing can tell of modems</source>
        <translation>nada informa de los módems</translation>
    </message>
    <message>
        <source>nothing has been counted yet</source>
        <translation>aún no se ha contado nada</translation>
    </message>
    <message>
        <source>nothing was imported from %1</source>
        <translation>no se importó nada de %1</translation>
    </message>
    <message>
        <source>nothing was sent: %1 tells a balance by message or phone alone</source>
        <translation>no se envió nada: %1 solo indica el saldo por SMS o por teléfono</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivada</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activada</translation>
    </message>
    <message>
        <source>on, roaming too</source>
        <translation>activada, también en itinerancia</translation>
    </message>
    <message>
        <source>only one of these goes at a time: %1</source>
        <translation>solo una de estas opciones a la vez: %1</translation>
    </message>
    <message>
        <source>other</source>
        <translation>otro</translation>
    </message>
    <message>
        <source>others can read a password on the command line in the list of processes; use password=-</source>
        <translation>otros pueden leer una contraseña de la línea de órdenes en la lista de procesos; use password=-</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>número propio</translation>
    </message>
    <message>
        <source>password</source>
        <translation>contraseña</translation>
    </message>
    <message>
        <source>password: only Latin-1 characters can be stored sealed</source>
        <translation>password: solo los caracteres Latin-1 se pueden guardar cifrados</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>port</source>
        <translation>puerto</translation>
    </message>
    <message>
        <source>present</source>
        <translation>presente</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>predef.</translation>
    </message>
    <message>
        <source>preset, default</source>
        <translation>predef., por defecto</translation>
    </message>
    <message>
        <source>product type (1 is CDMA)</source>
        <translation>tipo de módem (1: CDMA)</translation>
    </message>
    <message>
        <source>profiles restored: %1</source>
        <translation>perfiles restaurados: %1</translation>
    </message>
    <message>
        <source>profiles saved to %1: %2</source>
        <translation>perfiles guardados en %1: %2</translation>
    </message>
    <message>
        <source>proposed default</source>
        <translation>perfil propuesto</translation>
    </message>
    <message>
        <source>proposed for</source>
        <translation>propuesto para</translation>
    </message>
    <message>
        <source>puk</source>
        <translation>PUK</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>listo</translation>
    </message>
    <message>
        <source>registration</source>
        <translation>registro en la red</translation>
    </message>
    <message>
        <source>replaced %1</source>
        <translation>%1 reemplazado</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>itinerancia</translation>
    </message>
    <message>
        <source>same     %1</source>
        <translation>%1 sin cambios</translation>
    </message>
    <message>
        <source>say on or off, not %1</source>
        <translation>indique on u off, no %1</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>buscando</translation>
    </message>
    <message>
        <source>signal in percent</source>
        <translation>señal en porcentaje</translation>
    </message>
    <message>
        <source>skipped  %1 (exists; see --replace)</source>
        <translation>%1 omitido (existe; vea --replace)</translation>
    </message>
    <message>
        <source>standard input can't be read</source>
        <translation>no se puede leer la entrada estándar</translation>
    </message>
    <message>
        <source>standard input can't be read: %1</source>
        <translation>no se puede leer la entrada estándar: %1</translation>
    </message>
    <message>
        <source>starting</source>
        <translation>iniciando</translation>
    </message>
    <message>
        <source>state</source>
        <translation>estado</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>estado %1</translation>
    </message>
    <message>
        <source>status (3 is ready)</source>
        <translation>estado (3: listo)</translation>
    </message>
    <message>
        <source>system mode</source>
        <translation>modo de sistema</translation>
    </message>
    <message>
        <source>system sub-mode</source>
        <translation>submodo de sistema</translation>
    </message>
    <message>
        <source>takes USSD commands</source>
        <translation>admite USSD</translation>
    </message>
    <message>
        <source>technology</source>
        <translation>tecnología</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>the backup can't be read</source>
        <translation>no se puede leer la copia de seguridad</translation>
    </message>
    <message>
        <source>the card asks for its %1; see orbisctl %2</source>
        <translation>la tarjeta pide su %1; vea orbisctl %2</translation>
    </message>
    <message>
        <source>the card asks for no %1</source>
        <translation>la tarjeta no pide ningún %1</translation>
    </message>
    <message>
        <source>the card can't be unlocked</source>
        <translation>no se puede desbloquear la tarjeta</translation>
    </message>
    <message>
        <source>the card does not answer; whether it took the code is not known</source>
        <translation>la tarjeta no responde; no se sabe si aceptó el código</translation>
    </message>
    <message>
        <source>the card is locked in a way that neither PIN nor PUK opens</source>
        <translation>la tarjeta tiene un bloqueo que ni el PIN ni el PUK abren</translation>
    </message>
    <message>
        <source>the card is unlocked</source>
        <translation>la tarjeta está desbloqueada</translation>
    </message>
    <message>
        <source>the card takes no code now</source>
        <translation>la tarjeta no acepta ahora ningún código</translation>
    </message>
    <message>
        <source>the card's operator name %1 tells none of these</source>
        <translation>el nombre de operador de la tarjeta, %1, no indica ninguno de estos</translation>
    </message>
    <message>
        <source>the choice can't be kept in the settings</source>
        <translation>la elección no se puede guardar en la configuración</translation>
    </message>
    <message>
        <source>the configuration customised for %1 leaves no presets by IMSI</source>
        <translation>la configuración personalizada para %1 no deja perfiles predefinidos por IMSI</translation>
    </message>
    <message>
        <source>the configuration has no presets by IMSI</source>
        <translation>la configuración no tiene perfiles predefinidos por IMSI</translation>
    </message>
    <message>
        <source>the connection can't be ended</source>
        <translation>no se puede terminar la conexión</translation>
    </message>
    <message>
        <source>the connection has not ended yet</source>
        <translation>la conexión aún no ha terminado</translation>
    </message>
    <message>
        <source>the connection of %1 is not ours to end</source>
        <translation>la conexión de %1 no es nuestra</translation>
    </message>
    <message>
        <source>the connection was ended elsewhere</source>
        <translation>la conexión se terminó en otro lugar</translation>
    </message>
    <message>
        <source>the data folder %1 can't be made or entered</source>
        <translation>la carpeta de datos %1 no se puede crear o abrir</translation>
    </message>
    <message>
        <source>the data folder %1 is not a folder</source>
        <translation>la carpeta de datos %1 no es una carpeta</translation>
    </message>
    <message>
        <source>the data volume can't be stored</source>
        <translation>no se puede guardar el volumen de datos</translation>
    </message>
    <message>
        <source>the default can't be cleared</source>
        <translation>no se puede quitar el perfil por defecto</translation>
    </message>
    <message>
        <source>the default can't be restored</source>
        <translation>no se puede restaurar el perfil por defecto</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>no se puede fijar el perfil por defecto</translation>
    </message>
    <message>
        <source>the field %1 is given twice</source>
        <translation>el campo %1 se indica dos veces</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>no se puede importar el archivo</translation>
    </message>
    <message>
        <source>the file's name is empty</source>
        <translation>el nombre del archivo está vacío</translation>
    </message>
    <message>
        <source>the limit can't be stored</source>
        <translation>no se puede guardar el límite</translation>
    </message>
    <message>
        <source>the modem does not answer</source>
        <translation>el módem no responde</translation>
    </message>
    <message>
        <source>the modem is not ready for a command, or another one is under way</source>
        <translation>el módem no está listo para un código o hay otro en curso</translation>
    </message>
    <message>
        <source>the modem's backend can't be had</source>
        <translation>el motor del módem no está disponible</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>el nombre está vacío; vea default --clear</translation>
    </message>
    <message>
        <source>the network did not answer in time</source>
        <translation>la red no respondió a tiempo</translation>
    </message>
    <message>
        <source>the new profile's name is the first argument</source>
        <translation>el nombre del perfil nuevo es el primer argumento</translation>
    </message>
    <message>
        <source>the password of %1 is not base64, as its encrypttype says; set it again</source>
        <translation>la contraseña de %1 no es base64, como dice su encrypttype; vuelva a ponerla</translation>
    </message>
    <message>
        <source>the profile can't be added</source>
        <translation>no se puede añadir el perfil</translation>
    </message>
    <message>
        <source>the profile can't be changed</source>
        <translation>no se puede modificar el perfil</translation>
    </message>
    <message>
        <source>the profile can't be deleted</source>
        <translation>no se puede eliminar el perfil</translation>
    </message>
    <message>
        <source>the profile library does not hold the preset %1</source>
        <translation>la biblioteca de perfiles no contiene el perfil predefinido %1</translation>
    </message>
    <message>
        <source>the profiles can't be changed</source>
        <translation>no se pueden modificar los perfiles</translation>
    </message>
    <message>
        <source>the profiles can't be exported</source>
        <translation>no se pueden exportar los perfiles</translation>
    </message>
    <message>
        <source>the profiles can't be imported</source>
        <translation>no se pueden importar los perfiles</translation>
    </message>
    <message>
        <source>the profiles can't be listed</source>
        <translation>no se pueden listar los perfiles</translation>
    </message>
    <message>
        <source>the profiles can't be restored</source>
        <translation>no se pueden restaurar los perfiles</translation>
    </message>
    <message>
        <source>the profiles can't be stored</source>
        <translation>no se pueden guardar los perfiles</translation>
    </message>
    <message>
        <source>the session has ended</source>
        <translation>la sesión ha terminado</translation>
    </message>
    <message>
        <source>the settings can't be stored</source>
        <translation>no se puede guardar la configuración</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>no se puede guardar la configuración de la conexión automática</translation>
    </message>
    <message>
        <source>the two PINs differ</source>
        <translation>los dos PIN no coinciden</translation>
    </message>
    <message>
        <source>there are no profiles %1</source>
        <translation>no existen los perfiles %1</translation>
    </message>
    <message>
        <source>there is a profile %1 already</source>
        <translation>ya existe un perfil %1</translation>
    </message>
    <message>
        <source>there is no SIM card</source>
        <translation>no hay tarjeta SIM</translation>
    </message>
    <message>
        <source>there is no configuration key %1</source>
        <translation>no existe la clave de configuración %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>no hay perfil por defecto; nombre uno: orbisctl connect NAME</translation>
    </message>
    <message>
        <source>there is no field %1; there are: %2</source>
        <translation>no existe el campo %1; existen: %2</translation>
    </message>
    <message>
        <source>there is no modem</source>
        <translation>no hay ningún módem</translation>
    </message>
    <message>
        <source>there is no modem %1; see orbisctl modems</source>
        <translation>no existe ningún módem %1; vea orbisctl modems</translation>
    </message>
    <message>
        <source>there is no profile %1</source>
        <translation>no existe ningún perfil %1</translation>
    </message>
    <message>
        <source>there is no profile of one's own</source>
        <translation>no hay ningún perfil propio</translation>
    </message>
    <message>
        <source>this user may not unlock the card</source>
        <translation>este usuario no tiene permiso para desbloquear la tarjeta</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>argumento inesperado: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>se desconoce</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>orden desconocida %1; vea orbisctl --help</translation>
    </message>
    <message>
        <source>unknown device %1; use one of %2</source>
        <translation>dispositivo desconocido %1; los posibles son: %2</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>uso: %1</translation>
    </message>
    <message>
        <source>user</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>nombre de usuario</translation>
    </message>
    <message>
        <source>user, default</source>
        <translation>propio, por defecto</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>aviso: %1</translation>
    </message>
    <message>
        <source>what was counted can't be read, or is damaged</source>
        <translation>lo que se contó no se puede leer o está dañado</translation>
    </message>
    <message>
        <source>wrong %1: %2</source>
        <translation>%1 incorrecto: %2</translation>
    </message>
    <message>
        <source>wrong %1: nothing opens the card any more</source>
        <translation>%1 incorrecto: ya nada desbloquea la tarjeta</translation>
    </message>
    <message>
        <source>wrong %1: the card now asks for its PUK</source>
        <translation>%1 incorrecto: la tarjeta pide ahora su PUK</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
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
        <translation>%1: como máximo %2 caracteres</translation>
    </message>
    <message>
        <source>%1: control characters can't be stored</source>
        <translation>%1: los caracteres de control no se pueden guardar</translation>
    </message>
    <message>
        <source>%1: may hold letters, digits, dots and hyphens</source>
        <translation>%1: puede contener letras, dígitos, puntos y guiones</translation>
    </message>
    <message>
        <source>%1: must be empty or an IPv4 address such as 192.0.2.1</source>
        <translation>%1: debe estar vacío o ser una dirección IPv4 como 192.0.2.1</translation>
    </message>
    <message>
        <source>%1: must be true or false</source>
        <translation>%1: debe ser true o false</translation>
    </message>
    <message>
        <source>Mobile broadband is switched off</source>
        <translation>La banda ancha móvil está desactivada</translation>
    </message>
    <message>
        <source>NetworkManager can't use the modem now</source>
        <translation>NetworkManager no puede usar ahora el módem</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager no responde</translation>
    </message>
    <message>
        <source>ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto</source>
        <translation>ORBISDIAL_DEVICE no indica ningún motor; los posibles son simulated, modemmanager, none y auto</translation>
    </message>
    <message>
        <source>a link in a folder where others may have put it is not followed: %1</source>
        <translation>no se sigue un enlace que otros pueden haber puesto en la carpeta: %1</translation>
    </message>
    <message>
        <source>a name has at most %1 characters</source>
        <translation>un nombre tiene como máximo %1 caracteres</translation>
    </message>
    <message>
        <source>a name must not contain any of %1</source>
        <translation>un nombre no puede contener ninguno de estos caracteres: %1</translation>
    </message>
    <message>
        <source>a name must not contain control characters</source>
        <translation>un nombre no puede contener caracteres de control</translation>
    </message>
    <message>
        <source>a password can't be sealed</source>
        <translation>no se puede cifrar una contraseña</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>un perfil necesita un nombre</translation>
    </message>
    <message>
        <source>a profile needs an access number, for example phonenumber=*99#</source>
        <translation>un perfil necesita un número de acceso, por ejemplo phonenumber=*99#</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>un elemento tiene más de %1 atributos</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>otro programa lo mantiene bloqueado</translation>
    </message>
    <message>
        <source>apn: must begin and end with a letter or a digit</source>
        <translation>apn: debe empezar y terminar con una letra o un dígito</translation>
    </message>
    <message>
        <source>can't be locked</source>
        <translation>no se puede bloquear</translation>
    </message>
    <message>
        <source>can't be locked: it is not a regular file</source>
        <translation>no se puede bloquear: no es un archivo normal</translation>
    </message>
    <message>
        <source>can't be looked at</source>
        <translation>no se puede consultar</translation>
    </message>
    <message>
        <source>can't be opened</source>
        <translation>no se puede abrir</translation>
    </message>
    <message>
        <source>can't be read now; what was last read of it stays in force</source>
        <translation>no se puede leer ahora; sigue vigente lo último que se leyó</translation>
    </message>
    <message>
        <source>can't be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>can't be written as XML</source>
        <translation>no se puede escribir como XML</translation>
    </message>
    <message>
        <source>can't close</source>
        <translation>no se puede cerrar</translation>
    </message>
    <message>
        <source>can't create a file in the folder</source>
        <translation>no se puede crear un archivo en la carpeta</translation>
    </message>
    <message>
        <source>can't enter the folder</source>
        <translation>no se puede entrar en la carpeta</translation>
    </message>
    <message>
        <source>can't enter the root folder</source>
        <translation>no se puede entrar en la carpeta raíz</translation>
    </message>
    <message>
        <source>can't flush to disk</source>
        <translation>no se puede volcar al disco</translation>
    </message>
    <message>
        <source>can't look at the folder</source>
        <translation>no se puede consultar la carpeta</translation>
    </message>
    <message>
        <source>can't read a link</source>
        <translation>no se puede leer un enlace</translation>
    </message>
    <message>
        <source>can't replace</source>
        <translation>no se puede reemplazar</translation>
    </message>
    <message>
        <source>can't set the file's mode</source>
        <translation>no se pueden establecer los permisos del archivo</translation>
    </message>
    <message>
        <source>can't set the file's owner</source>
        <translation>no se puede establecer el propietario del archivo</translation>
    </message>
    <message>
        <source>can't write</source>
        <translation>no se puede escribir</translation>
    </message>
    <message>
        <source>elements stand more than %1 deep in one another</source>
        <translation>hay elementos anidados a más de %1 niveles</translation>
    </message>
    <message>
        <source>every name for a copy of the damaged file is taken</source>
        <translation>todos los nombres para una copia del archivo dañado están ocupados</translation>
    </message>
    <message>
        <source>is damaged, and can't be kept: %1</source>
        <translation>está dañado y no se puede conservar: %1</translation>
    </message>
    <message>
        <source>is no file's name</source>
        <translation>no es un nombre de archivo</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is too large: %1 of at most %2 MB</source>
        <translation>es demasiado grande: %1 MB de un máximo de %2 MB</translation>
    </message>
    <message>
        <source>leads to no file</source>
        <translation>no lleva a ningún archivo</translation>
    </message>
    <message>
        <source>not written: it would be too large to be read again, %1 of at most %2 MB</source>
        <translation>no se ha escrito: sería demasiado grande para volver a leerlo, %1 MB de un máximo de %2 MB</translation>
    </message>
    <message>
        <source>other programs make and remove it all the time</source>
        <translation>otros programas lo crean y eliminan sin cesar</translation>
    </message>
    <message>
        <source>profiles can't be exported to this file</source>
        <translation>no se pueden exportar perfiles a este archivo</translation>
    </message>
    <message>
        <source>reading failed</source>
        <translation>falló la lectura</translation>
    </message>
    <message>
        <source>the XML declaration is too long</source>
        <translation>la declaración XML es demasiado larga</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: %2</source>
        <translation>no se puede cargar el motor «%1»: %2</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: it belongs to another version</source>
        <translation>no se puede cargar el motor «%1»: pertenece a otra versión</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: there is no %2</source>
        <translation>no se puede cargar el motor «%1»: no existe %2</translation>
    </message>
    <message>
        <source>the device backend can't start</source>
        <translation>el motor del módem no puede iniciarse</translation>
    </message>
    <message>
        <source>the document type declares entities or attributes</source>
        <translation>el tipo de documento declara entidades o atributos</translation>
    </message>
    <message>
        <source>the output can't be written: %1</source>
        <translation>no se puede escribir la salida: %1</translation>
    </message>
    <message>
        <source>the process was made by one that uses the modem</source>
        <translation>el proceso fue creado por otro que usa el módem</translation>
    </message>
    <message>
        <source>the sealed password of "%1" was changed outside and can't be opened</source>
        <translation>la contraseña cifrada de «%1» se modificó desde fuera y no se puede descifrar</translation>
    </message>
    <message>
        <source>the user data directory can't be had</source>
        <translation>la carpeta de datos del usuario no está disponible</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>hay más de %1 elementos</translation>
    </message>
    <message>
        <source>there are more than %1 namespaces</source>
        <translation>hay más de %1 espacios de nombres</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>no hay memoria suficiente para ello</translation>
    </message>
    <message>
        <source>was damaged (%1); the damaged file is kept as %2</source>
        <translation>estaba dañado (%1); el archivo dañado se conserva como %2</translation>
    </message>
    <message>
        <source>was removed while the profiles were being changed</source>
        <translation>se eliminó mientras se modificaban los perfiles</translation>
    </message>
    <message>
        <source>written, but the folder can't be flushed to disk</source>
        <translation>escrito, pero la carpeta no se puede volcar al disco</translation>
    </message>
</context>
</TS>
