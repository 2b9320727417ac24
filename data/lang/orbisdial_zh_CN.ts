<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DialupPlugin</name>
    <message>
        <source>IDS_DIALUP_PROMPT_TITLE</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PROMPT_TEXT</source>
        <translation>“%1”的用户名和密码：</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USER</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>IDS_DIALUP_PASSWORD</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CONNECT</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_SETTINGS</source>
        <translation>未加载连接设置。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DEFAULT</source>
        <translation>没有默认配置文件。请在设置中指定。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_PROFILE</source>
        <translation>没有配置文件“%1”。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANCELLED</source>
        <translation>连接已取消。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_READY</source>
        <translation>调制解调器尚未就绪。请稍候再试；如果仍不行，请拔下后重新插入。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARRIER</source>
        <translation>网络没有应答（无载波）。请在信号较好的地方重试。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTHENTICATION_FAILED</source>
        <translation>网络拒绝了“%1”的用户名或密码。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM</source>
        <translation>没有调制解调器。请插入一个。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_IN_USE</source>
        <translation>调制解调器正由 %1 使用。请先断开那个连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_SUBSCRIBED</source>
        <translation>该卡没有“%1”的数据服务。请检查接入点名称 (APN)，或询问运营商。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REFUSED</source>
        <translation>网络拒绝了“%1”，未说明原因。请检查其用户名、密码和接入点名称 (APN)。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_DROPPED</source>
        <translation>连接已断开。请重新连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LINK</source>
        <translation>无法在这台计算机上启动连接。请重试；详细信息可能有更多说明。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BUSY</source>
        <translation>号码占线。请稍后重试。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_DIAL_TONE</source>
        <translation>没有拨号音。请检查调制解调器的天线和卡。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_ANSWER</source>
        <translation>网络未及时应答。请稍后重试。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_APN_REFUSED</source>
        <translation>网络拒绝“%1”的接入点名称 (APN)。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_REGISTERED</source>
        <translation>未找到网络。请在信号较好的地方重试。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_REGISTRATION_DENIED</source>
        <translation>网络不接纳此卡。请询问运营商该卡是否已启用。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_CARD</source>
        <translation>调制解调器中没有 SIM 卡。请插入一张。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_LOCKED</source>
        <translation>SIM 卡已锁定。请输入其 PIN 码。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_CARD</source>
        <translation>调制解调器不接受此 SIM 卡。请使用该调制解调器所属运营商的卡。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_WRONG_PIN</source>
        <translation>PIN 码错误。请输入正确的 PIN 码。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_MODEM_GONE</source>
        <translation>调制解调器已被移除或停止工作。请重新插入。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_MODEM_SERVICE</source>
        <translation>调制解调器服务 (ModemManager) 未运行或没有响应。请重新启动它，或联系管理员。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NO_NETWORK_SERVICE</source>
        <translation>连接服务 (NetworkManager) 未运行或没有响应。请重新启动它，或联系管理员。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_SUSPENDED</source>
        <translation>计算机进入睡眠，连接已结束。请重新连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_TAKEN</source>
        <translation>另一个程序占用了调制解调器。请断开那个连接后重新连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CREDENTIALS_MISSING</source>
        <translation>网络要求用户名和密码。请在设置中为“%1”输入。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_ENDED_OUTSIDE</source>
        <translation>连接已被本程序以外的操作断开。如有需要请重新连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_HUNG_UP</source>
        <translation>连接已在 OrbisDial 的另一个程序中结束。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STUCK</source>
        <translation>调制解调器卡在先前的呼叫中。请拔下后重新插入。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOT_ALLOWED</source>
        <translation>您无权在这台计算机上连接。请向管理员申请权限。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_OTHER</source>
        <translation>使用“%1”连接失败。详细信息中有已知情况。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_CANNOT_HANG_UP</source>
        <translation>无法断开连接。请重试。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_SUPPORTED</source>
        <translation>调制解调器或网络不接受此类代码。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_REFUSED</source>
        <translation>网络拒绝了该代码或结束了会话。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NO_ANSWER</source>
        <translation>网络没有应答。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_CANCELLED</source>
        <translation>会话已取消。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_NOT_ALLOWED</source>
        <translation>您无权在这台计算机上发送代码。请向管理员申请权限。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USSD_FAILED</source>
        <translation>代码发送失败。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_CALL</source>
        <translation>请拨打 %1。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_MESSAGE</source>
        <translation>请发送短信“%2”到 %1。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BALANCE_EMPTY_MESSAGE</source>
        <translation>请发送一条空短信到 %1。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NAME</source>
        <translation>配置文件名称“%1”过长，不能用于连接。请缩短它。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_NUMBER</source>
        <translation>“%1”的接入号码不能使用。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_APN</source>
        <translation>“%1”的接入点名称 (APN) 不能使用：最多 64 个字母、数字、点、连字符和下划线。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_ADDRESS</source>
        <translation>“%1”的 IP 地址无效。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS</source>
        <translation>“%1”的 DNS 服务器地址无效。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_DNS_ALTERNATIVE</source>
        <translation>“%1”的备用 DNS 服务器地址无效。请在设置中更正。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_USER</source>
        <translation>无法发送“%1”的用户名：最多 255 字节。请缩短它。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_BAD_PASSWORD</source>
        <translation>无法发送“%1”的密码：最多 255 字节。请缩短它。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_PREPARING</source>
        <translation>正在准备调制解调器</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_REGISTERING</source>
        <translation>正在搜索网络，可能需要一分钟</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_CONNECTING</source>
        <translation>正在呼叫网络</translation>
    </message>
    <message>
        <source>IDS_DIALUP_STEP_ADDRESSING</source>
        <translation>正在请求地址</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USED_BY</source>
        <translation>正由 %1 使用</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_NUMBER</source>
        <translation>接入号码不起作用：调制解调器拨打网络自己的号码。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_ADDRESS</source>
        <translation>静态 IP 地址不起作用：地址由网络分配。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_WINS</source>
        <translation>WINS 服务器不起作用。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_NOTE_OTHER_ADDRESS</source>
        <translation>未能获得静态 IP 地址；网络分配了 %1。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_80</source>
        <translation>本月流量已用去 80%。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_USAGE_100</source>
        <translation>本月流量已用完。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_HUNG_UP</source>
        <translation>自动连接将等待您手动连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_READY</source>
        <translation>自动连接正在等待调制解调器。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_NOT_REGISTERED</source>
        <translation>自动连接正在等待网络。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_ROAMING</source>
        <translation>漫游时不自动连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_IN_USE</source>
        <translation>自动连接正在等待调制解调器空闲。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_PAUSE</source>
        <translation>自动连接稍后将重试。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_REFUSED</source>
        <translation>自动连接已停止，因为网络拒绝了“%1”。请更正其用户名和密码，或手动连接。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_FAILED</source>
        <translation>自动连接已停止：再次尝试仍会同样失败。</translation>
    </message>
    <message>
        <source>IDS_DIALUP_AUTO_MUST_ASK</source>
        <translation>自动连接无法使用“%1”，因为它会询问用户名和密码。</translation>
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
        <translation>连接</translation>
    </message>
    <message>
        <source>IDS_TABPAGE_NETCONNECTSETTINGDLG_DIALUP</source>
        <translation>拨号</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT</source>
        <translation>连接配置文件(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_VALIDATE</source>
        <translation>认证</translation>
    </message>
    <message>
        <source>IDS_SETTING_GROUP_Authentication_protocol</source>
        <translation>认证协议</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_APN_NAME</source>
        <translation>APN(&amp;A):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_NUMBER</source>
        <translation>接入号码(&amp;B):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_USENAME</source>
        <translation>用户名(&amp;M):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_PASSWORD</source>
        <translation>密码(&amp;W):</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_DYNAMIC</source>
        <translation>动态</translation>
    </message>
    <message>
        <source>IDS_SETTING_RADIO_APN_IP_STATIC</source>
        <translation>静态</translation>
    </message>
    <message>
        <source>IDS_USERNAME_AND_PASSWORD</source>
        <translation>连接时询问(&amp;K)</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_CHAP</source>
        <translation>CHAP(&amp;H)</translation>
    </message>
    <message>
        <source>IDS_SETTING_CHECK_PAP</source>
        <translation>PAP(&amp;P)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NEW</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_DELETE</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_EDIT</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_SAVE</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_NO_SAVE</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>设为默认(&amp;F)</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_INPUT</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT</source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>IDS_SETTING_BUTTON_HIGH</source>
        <translation>高级(&amp;V)…</translation>
    </message>
    <message>
        <source>IDS_STC_NETCONNECTSETTINGDLG_DEFAULT</source>
        <translation>(默认)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>连接设置</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_YES</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>IDS_NO</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME</source>
        <translation>请输入配置文件名称。</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_PROFILE_NAME_SAME</source>
        <translation>已存在同名的配置文件，请使用其他名称。</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_PROFILENAMEERR</source>
        <translation>配置文件名称不能包含下列字符：</translation>
    </message>
    <message>
        <source>IDS_MSG_CONNECTSETTINGDLG_NULLNUMBER</source>
        <translation>请输入接入号码，例如 *99#。</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_ERROR</source>
        <translation>APN 无效。APN 可以包含字母、数字、点和连字符，并且必须以字母或数字开头和结尾。</translation>
    </message>
    <message>
        <source>IDS_SMSUI_DRAFT_DEL</source>
        <translation>确定要删除此配置文件吗？</translation>
    </message>
    <message>
        <source>IDS_SETTING_QUERY_USER_TO_SAVE</source>
        <translation>配置文件已更改但尚未保存。是否保存更改？</translation>
    </message>
    <message>
        <source>IDS_NET_TIPS_PROFILEEXIST</source>
        <translation>已存在。是否替换此配置文件？</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_SAME_FOR_REMAINING</source>
        <translation>对其余配置文件执行相同操作</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_APN_IP</source>
        <translation>IP 地址无效。请输入形如 192.0.2.1 的地址。</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_DNS_IP</source>
        <translation>DNS 服务器地址无效。请输入形如 192.0.2.1 的地址。</translation>
    </message>
    <message>
        <source>IDS_SETTING_PROMPT_WINS_IP</source>
        <translation>WINS 服务器地址无效。请输入形如 192.0.2.1 的地址。</translation>
    </message>
    <message>
        <source>IDS_TITLE_IMPORTDLG</source>
        <translation>导入配置文件</translation>
    </message>
    <message>
        <source>IDS_TITLE_EXPORTDLG</source>
        <translation>导出配置文件</translation>
    </message>
    <message>
        <source>IDS_TREENODE_PROFILEINPUTDLG_DIALUP</source>
        <translation>拨号配置文件</translation>
    </message>
    <message>
        <source>IDS_SETTING_BROWSE_TELEPHLONE</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>IDS_STC_DIALUPDLG_ADVANCE</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_GROUP_APN_IP</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_DNS</source>
        <translation>DNS 服务器</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_SET_WINS</source>
        <translation>WINS 服务器</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_IP</source>
        <translation>IP 地址(&amp;I):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS</source>
        <translation>首选(&amp;R):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_DNS_SECOND</source>
        <translation>备用(&amp;S):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS1</source>
        <translation>首选(&amp;M):</translation>
    </message>
    <message>
        <source>IDS_SETTING_STATIC_WINS_SECOND</source>
        <translation>备用(&amp;E):</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_NEW_PROFILE</source>
        <translation>新建配置文件</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_READONLY</source>
        <translation>此配置文件为只读。要更改，请点击“新建”，并以其他名称输入其内容。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_PRESET</source>
        <translation>此配置文件为预设。要更改，请关闭设置，在主窗口中按 Ctrl+N：将以相同内容创建您自己的配置文件。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_PROFILE_CONNECTED</source>
        <translation>此配置文件已连接。请先断开连接。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_DEFAULT_CONNECTED</source>
        <translation>连接期间无法更改默认配置文件。请先断开连接。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_PROFILE</source>
        <translation>还没有配置文件。请点击“新建”来创建。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_EDIT_OPEN</source>
        <translation>正在编辑配置文件。请先点击“保存”或“撤销”。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_NO_EDIT</source>
        <translation>当前没有正在编辑的配置文件。请先点击“新建”或“编辑”。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_READONLY</source>
        <translation>此配置文件为只读。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_PRESET</source>
        <translation>此配置文件为预设。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_LOCKED_CONNECTED</source>
        <translation>此配置文件已连接。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_TIP_SAVE_FAILED</source>
        <translation>无法保存配置文件。内容没有丢失：请排除问题，然后再次点击“保存”。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_HINT_PASSWORD</source>
        <translation>有些字符无法保存：请只使用西欧字符。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_LIST</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_PROFILE_NAME</source>
        <translation>配置文件名称</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_ACC_TRANSFER_TREE</source>
        <translation>可选择的配置文件</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_WILDCARD</source>
        <translation>文件名不能包含“*”。请输入其他文件名。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_EXPORT_MERGE</source>
        <translation>已存在。其中的配置文件将保留，同名的将被替换。是否导出到此文件？</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_OFF</source>
        <translation>配置不允许导入。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_MISSING</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>IDS_NETCONNECT_MSG_IMPORT_NONE</source>
        <translation>文件中没有配置文件。</translation>
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
        <translation>OrbisDial（模拟调制解调器）</translation>
    </message>
    <message>
        <source>IDS_HOST_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_HOST_CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_HOST_PAGES</source>
        <translation>设置页</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DEFAULT_PROFILE</source>
        <translation>没有默认配置文件</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>IDS_HOST_DISCONNECT</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTED</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTED</source>
        <translation>已连接：%1</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_DISCONNECTING</source>
        <translation>正在断开…</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER</source>
        <translation>未加载拨号插件</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM</source>
        <translation>SIM 卡 %1</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PRESET</source>
        <translation>SIM 卡 %1：预设“%2”，按其前缀 %3 选定</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_OPERATOR</source>
        <translation>SIM 卡 %1：预设“%2”，按其前缀 %3 和运营商名称“%4”选定</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_PREFIX</source>
        <translation>SIM 卡 %1：前缀 %2 已知，但其预设均未被建议为默认</translation>
    </message>
    <message>
        <source>IDS_HOST_SIM_NO_MATCH</source>
        <translation>SIM 卡 %1：没有匹配的预设</translation>
    </message>
    <message>
        <source>IDS_HOST_STORAGE_PROBLEM</source>
        <translation>存储问题：%1</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_PROBLEM</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_LOAD_FAILED</source>
        <translation>无法加载（%1）</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_FOREIGN</source>
        <translation>不是本程序的插件</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_TAKEN</source>
        <translation>另一个插件具有相同的标识符</translation>
    </message>
    <message>
        <source>IDS_HOST_PLUGIN_INIT_FAILED</source>
        <translation>无法启动</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PROBLEM</source>
        <translation>无法使用调制解调器：%1</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NAME</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>IDS_HOST_LANGUAGE</source>
        <translation>语言：</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCK_DEFAULT</source>
        <translation>固定默认配置文件：隐藏“设为默认”按钮</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_NOT_SAVED</source>
        <translation>无法保存设置。</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_LABEL</source>
        <translation>配置文件：</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE</source>
        <translation>用于连接的配置文件</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_TIP</source>
        <translation>选择一个配置文件，或输入其名称的一部分</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILE_DEFAULT</source>
        <translation>%1 (默认)</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_OWN</source>
        <translation>我的配置文件</translation>
    </message>
    <message>
        <source>IDS_HOST_PROFILES_PRESETS</source>
        <translation>此 SIM 卡的预设</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS</source>
        <translation>预设…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_TITLE</source>
        <translation>全球运营商预设</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH</source>
        <translation>搜索：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_SEARCH_HINT</source>
        <translation>国家/地区、运营商、套餐、APN 或网络代码</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_LIST</source>
        <translation>国家/地区、运营商和套餐</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_NAME</source>
        <translation>国家/地区、运营商、套餐</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COLUMN_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_COUNT</source>
        <translation>套餐数：%1</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_NONE</source>
        <translation>未找到。请减少关键词或换一种写法。</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_OTHER</source>
        <translation>其他预设</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_PREPAID</source>
        <translation>%1（预付费）</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_POSTPAID</source>
        <translation>%1（后付费）</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_HINT</source>
        <translation>请选择一个套餐以查看其设置。</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESETS_USE</source>
        <translation>用作新配置文件…</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_COUNTRY</source>
        <translation>国家/地区：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_OPERATOR</source>
        <translation>运营商：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PLAN</source>
        <translation>套餐：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN</source>
        <translation>APN：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_APN_AUTOMATIC</source>
        <translation>由网络分配</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_NUMBER</source>
        <translation>接入号码：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_USER</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_ASKED</source>
        <translation>连接时询问</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_PASSWORD</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_AUTHENTICATION</source>
        <translation>认证：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_DNS</source>
        <translation>DNS：</translation>
    </message>
    <message>
        <source>IDS_HOST_PRESET_CODES</source>
        <translation>网络代码：</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_FROM</source>
        <translation>以此新建…</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_TITLE</source>
        <translation>新建配置文件</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_INTRO</source>
        <translation>以“%1”的内容创建您自己的配置文件。可在设置中更改。</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_NAME</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_DEFAULT</source>
        <translation>设为默认</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_CONNECTED</source>
        <translation>连接期间无法更改默认配置文件。</translation>
    </message>
    <message>
        <source>IDS_HOST_NEW_PROFILE_MAKE</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR</source>
        <translation>选择运营商…</translation>
    </message>
    <message>
        <source>IDS_HOST_CHOOSE_OPERATOR_DETAIL</source>
        <translation>没有适用于此 SIM 卡的预设。请选择运营商，或在下方选择任一配置文件。</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>IDS_HOST_SETTINGS_TITLE</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK</source>
        <translation>解锁…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE</source>
        <translation>余额…</translation>
    </message>
    <message>
        <source>IDS_HOST_QUIT</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_CONNECTION</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_HOST_MENU_HELP</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>IDS_HOST_GUIDE</source>
        <translation>使用指南</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT</source>
        <translation>关于 OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TITLE</source>
        <translation>关于 OrbisDial</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_VERSION</source>
        <translation>OrbisDial %1</translation>
    </message>
    <message>
        <source>IDS_HOST_ABOUT_TEXT</source>
        <translation>移动宽带调制解调器的连接管理器。

MIT 许可证。使用 Qt %1 (LGPL)、libsodium (ISC)、ICU (Unicode) 以及公有领域数据库 mobile-broadband-provider-info。</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>IDS_HOST_CONNECT_WITH</source>
        <translation>使用以下配置文件连接</translation>
    </message>
    <message>
        <source>IDS_HOST_SHOW_WINDOW</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_DIALER_DETAIL</source>
        <translation>程序中负责连接的部分缺失。请重新安装 OrbisDial。</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING</source>
        <translation>正在查找调制解调器…</translation>
    </message>
    <message>
        <source>IDS_HOST_LOOKING_DETAIL</source>
        <translation>请稍候。</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE</source>
        <translation>调制解调器服务不可用</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_SERVICE_DETAIL</source>
        <translation>OrbisDial 通过 ModemManager 查找调制解调器，但它未运行或没有响应。请安装或重新启动它。</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE</source>
        <translation>连接服务不可用</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_NETWORK_SERVICE_DETAIL</source>
        <translation>OrbisDial 通过 NetworkManager 连接，但它没有响应。请重新启动它，或联系管理员。</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM</source>
        <translation>没有调制解调器</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_MODEM_DETAIL</source>
        <translation>请插入调制解调器。有些设备需要半分钟才能被识别。</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD</source>
        <translation>没有 SIM 卡</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_CARD_DETAIL</source>
        <translation>请拔下调制解调器，插入 SIM 卡，然后重新插上。</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED</source>
        <translation>SIM 卡已锁定</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PIN_DETAIL</source>
        <translation>需要输入 PIN 码。</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_PUK_DETAIL</source>
        <translation>PIN 码错误次数过多。需要输入运营商提供的 PUK 码。</translation>
    </message>
    <message>
        <source>IDS_HOST_LOCKED_OTHER_DETAIL</source>
        <translation>PIN 码和 PUK 码都无法解除此锁定。请咨询运营商或调制解调器的销售商。</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING</source>
        <translation>调制解调器正在启动…</translation>
    </message>
    <message>
        <source>IDS_HOST_STARTING_DETAIL</source>
        <translation>很快就会就绪。</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED</source>
        <translation>调制解调器未就绪</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_FAILED_DETAIL</source>
        <translation>请拔下后重新插上。</translation>
    </message>
    <message>
        <source>IDS_HOST_NOT_REGISTERED</source>
        <translation>未注册到网络</translation>
    </message>
    <message>
        <source>IDS_HOST_SEARCHING</source>
        <translation>正在搜索网络…</translation>
    </message>
    <message>
        <source>IDS_HOST_DENIED</source>
        <translation>网络拒绝此 SIM 卡。请咨询运营商。</translation>
    </message>
    <message>
        <source>IDS_HOST_SIGNAL</source>
        <translation>信号 %1%</translation>
    </message>
    <message>
        <source>IDS_HOST_ROAMING</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>IDS_HOST_STATE_CONNECTING_TO</source>
        <translation>正在使用 %1 连接…</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_WITH</source>
        <translation>无法使用 %1 连接</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_UP</source>
        <translation>与 %1 的连接已中断</translation>
    </message>
    <message>
        <source>IDS_HOST_FAILED_ENDED</source>
        <translation>与 %1 的连接已被结束</translation>
    </message>
    <message>
        <source>IDS_HOST_DETAILS</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>IDS_HOST_TRY_AGAIN</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>IDS_HOST_CURVE</source>
        <translation>最近三分钟的传输</translation>
    </message>
    <message>
        <source>IDS_HOST_DOWN_UP</source>
        <translation>↓ %1  ↑ %2</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH</source>
        <translation>本月：%1</translation>
    </message>
    <message>
        <source>IDS_HOST_MONTH_OF</source>
        <translation>本月：%1，共 %2</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_TITLE</source>
        <translation>解锁 SIM 卡</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_TITLE</source>
        <translation>SIM 卡余额</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_COMMAND</source>
        <translation>%1 会在收到代码 %2 后告知预付费卡的余额。在您点击“查询”之前不会发送任何内容。</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_BY_HAND</source>
        <translation>%1 通过以下方式告知余额，需要您自行操作：</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_UNKNOWN</source>
        <translation>这里不知道您的运营商如何告知余额。如果您知道它的代码，请输入；在您点击“查询”之前不会发送任何内容。</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_COMMAND</source>
        <translation>代码：</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_ASK</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_REPLY</source>
        <translation>您的回复：</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_SEND</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_WAITING</source>
        <translation>正在等待网络…</translation>
    </message>
    <message>
        <source>IDS_HOST_BALANCE_NOT_NOW</source>
        <translation>没有可向网络发送代码的就绪调制解调器。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN_INTRO</source>
        <translation>SIM 卡需要 PIN 码。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK_INTRO</source>
        <translation>PIN 码错误次数过多。请输入运营商提供的 PUK 码，并设置新的 PIN 码。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PIN</source>
        <translation>PIN 码：</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PUK</source>
        <translation>PUK 码：</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NEW_PIN</source>
        <translation>新 PIN 码：</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_REPEAT_PIN</source>
        <translation>再次输入新 PIN 码：</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOW</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS</source>
        <translation>剩余尝试次数：%1</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_ATTEMPTS_UNKNOWN</source>
        <translation>剩余尝试次数未知。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PIN</source>
        <translation>如果这次输入错误，SIM 卡将要求输入 PUK 码。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_LAST_PUK</source>
        <translation>如果这次输入错误，SIM 卡将永久失效。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_USE_LAST</source>
        <translation>使用最后一次尝试</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_PENDING</source>
        <translation>SIM 卡正在验证…</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_WRONG</source>
        <translation>输入错误。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_NOT_ALLOWED</source>
        <translation>您无权解锁此卡。请联系这台计算机的管理员。</translation>
    </message>
    <message>
        <source>IDS_HOST_UNLOCK_FAILED</source>
        <translation>无法解锁此卡。%1</translation>
    </message>
    <message>
        <source>IDS_HOST_NOTIFY</source>
        <translation>显示有关连接的消息</translation>
    </message>
    <message>
        <source>IDS_HOST_CLOSE_TO_TRAY</source>
        <translation>关闭窗口后程序保留在系统托盘中</translation>
    </message>
    <message>
        <source>IDS_HOST_START_WITH_SESSION</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>IDS_HOST_STAYS_CONNECTED</source>
        <translation>退出程序后保持连接</translation>
    </message>
    <message>
        <source>IDS_HOST_LIMIT</source>
        <translation>此 SIM 卡每月的流量上限：</translation>
    </message>
    <message>
        <source>IDS_HOST_NO_LIMIT</source>
        <translation>无</translation>
    </message>
    <message>
        <source>IDS_HOST_END_DISCONNECTS</source>
        <translation>您已连接。退出程序将断开连接。</translation>
    </message>
    <message>
        <source>IDS_HOST_END_STAYS</source>
        <translation>您已连接，退出程序后连接仍会保持。</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_TITLE</source>
        <translation>模拟调制解调器</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_IMSI</source>
        <translation>IMSI：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARD</source>
        <translation>无卡</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_READY</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_MULTI_MODE</source>
        <translation>多模卡</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE</source>
        <translation>卡模式：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CARD_MODE_NONE</source>
        <translation>无</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_PRODUCT_TYPE</source>
        <translation>产品类型：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_MODE</source>
        <translation>系统模式：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SYSTEM_SUBMODE</source>
        <translation>子模式：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_OUTCOME</source>
        <translation>拨号结果：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_ANSWERS</source>
        <translation>接通</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_CARRIER</source>
        <translation>无载波</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_AUTHENTICATION_FAILS</source>
        <translation>认证失败</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_NO_SIGNAL</source>
        <translation>无信号</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_INITIALISE</source>
        <translation>初始化</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_CHANGE_CARD</source>
        <translation>更换卡</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_SETTING</source>
        <translation>设置：</translation>
    </message>
    <message>
        <source>IDS_HOST_MODEM_DROP</source>
        <translation>模拟断线</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_FAILED</source>
        <translation>未从 %1 导入任何内容。
%2</translation>
    </message>
    <message>
        <source>IDS_HOST_IMPORT_BUSY</source>
        <translation>请先完成当前打开的操作，然后重新打开该文件。</translation>
    </message>
</context>
<context>
    <name>Programs</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 (chosen by the user)</source>
        <translation>%1（用户选定）</translation>
    </message>
    <message>
        <source>%1 (proposed by the configuration)</source>
        <translation>%1（配置建议）</translation>
    </message>
    <message>
        <source>%1 (simulated modem)</source>
        <translation>%1（模拟调制解调器）</translation>
    </message>
    <message>
        <source>%1 Put -- before a name that begins with a hyphen.</source>
        <translation>%1 名称以连字符开头时，请在其前面加上 --。</translation>
    </message>
    <message>
        <source>%1 bytes received, %2 sent</source>
        <translation>已接收 %1 字节，已发送 %2 字节</translation>
    </message>
    <message>
        <source>%1 holds no profile %2</source>
        <translation>%1 中没有配置文件 %2</translation>
    </message>
    <message>
        <source>%1 is a preset; make one of your own from it: %2</source>
        <translation>%1 是预设；请由它新建自己的配置文件：%2</translation>
    </message>
    <message>
        <source>%1 is connected; see orbisctl disconnect</source>
        <translation>%1 已连接；参见 orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is being connected; see orbisctl disconnect</source>
        <translation>%1 正在连接；参见 orbisctl disconnect</translation>
    </message>
    <message>
        <source>%1 is no field to set; fields: %2</source>
        <translation>%1 不是可设置的字段；字段：%2</translation>
    </message>
    <message>
        <source>%1 is no limit; say a volume such as 500MB or 1.5GB</source>
        <translation>%1 不是上限；请指定流量，例如 500MB 或 1.5GB</translation>
    </message>
    <message>
        <source>%1 is read-only; make one of your own from it: %2</source>
        <translation>%1 为只读；请由它新建自己的配置文件：%2</translation>
    </message>
    <message>
        <source>%1 may be more than one command: %2</source>
        <translation>%1 可能是多个命令：%2</translation>
    </message>
    <message>
        <source>%1 names a modem, and counts before the choice</source>
        <translation>%1 指定了调制解调器，优先于此选择</translation>
    </message>
    <message>
        <source>%1 of %2 were no IMSI, which has 5 to 15 digits</source>
        <translation>%2 个中有 %1 个不是 IMSI（IMSI 为 5 到 15 位数字）</translation>
    </message>
    <message>
        <source>%1 percent of the limit of %2</source>
        <translation>上限 %2 的百分之 %1</translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation>%1，%2：</translation>
    </message>
    <message>
        <source>%1, at most %2 characters</source>
        <translation>%1，最多 %2 个字符</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2 received, %3 sent, %4 together</source>
        <translation>%1：已接收 %2，已发送 %3，共 %4</translation>
    </message>
    <message>
        <source>%1: can't be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
    <message>
        <source>%1: does not exist</source>
        <translation>%1：不存在</translation>
    </message>
    <message>
        <source>%1: holds no template for new profiles; see --like</source>
        <translation>%1：没有新配置文件的模板；参见 --like</translation>
    </message>
    <message>
        <source>%1: is no profile file; --force replaces it</source>
        <translation>%1：不存放连接配置；--force 可替换它</translation>
    </message>
    <message>
        <source>%1: is the user's profile file itself</source>
        <translation>%1：这就是用户的配置文件库本身</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1：第 %2 行：%3</translation>
    </message>
    <message>
        <source>%1: no prefix matches; the configuration's own presets</source>
        <translation>%1：没有匹配的前缀；使用配置自身的预设</translation>
    </message>
    <message>
        <source>%1: not UTF-8 on standard input</source>
        <translation>%1：标准输入中的内容不是 UTF-8</translation>
    </message>
    <message>
        <source>%1: not an IMSI</source>
        <translation>%1：不是 IMSI</translation>
    </message>
    <message>
        <source>%1: prefix %2</source>
        <translation>%1：前缀 %2</translation>
    </message>
    <message>
        <source>%1: standard input holds none</source>
        <translation>%1：标准输入中没有</translation>
    </message>
    <message>
        <source>%1; give a new one with password=</source>
        <translation>%1；请用 password= 指定新密码</translation>
    </message>
    <message>
        <source>%1; it ends with this program, see --hold</source>
        <translation>%1；它随本程序结束，参见 --hold</translation>
    </message>
    <message>
        <source>%1; then the card asks for its PUK; --last takes it</source>
        <translation>%1；之后卡会要求输入 PUK 码；用 --last 使用这次尝试</translation>
    </message>
    <message>
        <source>%1; then the card is lost; --last takes it</source>
        <translation>%1；之后卡将永久失效；用 --last 使用这次尝试</translation>
    </message>
    <message>
        <source>%1; waits, since the network refused user name or password</source>
        <translation>%1；正在等待，因为网络拒绝了用户名或密码</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>（已隐藏）</translation>
    </message>
    <message>
        <source>--clear takes no modem</source>
        <translation>--clear 不带调制解调器</translation>
    </message>
    <message>
        <source>--json goes with neither --terse nor --fields</source>
        <translation>--json 不能与 --terse 或 --fields 同时使用</translation>
    </message>
    <message>
        <source>--roaming goes with on</source>
        <translation>--roaming 只能与 on 一起使用</translation>
    </message>
    <message>
        <source>--timeout takes a number of seconds from 1 to 86400</source>
        <translation>--timeout 需要 1 到 86400 之间的秒数</translation>
    </message>
    <message>
        <source>A profile file to import; the window asks first.</source>
        <translation>要导入的配置文件；窗口会先询问。</translation>
    </message>
    <message>
        <source>Add a profile. password=- reads the password from standard input.</source>
        <translation>添加配置文件。password=- 从标准输入读取密码。</translation>
    </message>
    <message>
        <source>All profiles of one's own.</source>
        <translation>所有自定义配置文件。</translation>
    </message>
    <message>
        <source>Answer (none ends the session): </source>
        <translation>回复（留空则结束会话）：</translation>
    </message>
    <message>
        <source>Ask the network for a prepaid card's balance.</source>
        <translation>向网络查询预付费卡的余额。</translation>
    </message>
    <message>
        <source>Change fields of a profile; name=NEW renames it.</source>
        <translation>更改配置文件的字段；name=新名称 可重命名。</translation>
    </message>
    <message>
        <source>Command-line client of the OrbisDial connection manager.</source>
        <translation>OrbisDial 连接管理器的命令行客户端。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Connect with a profile, or with the default.</source>
        <translation>使用某个配置文件或默认配置文件连接。</translation>
    </message>
    <message>
        <source>Connection manager for mobile-broadband modems.</source>
        <translation>移动宽带调制解调器的连接管理器。</translation>
    </message>
    <message>
        <source>Delete profiles: all of them, or none.</source>
        <translation>删除配置文件：全部删除或一个都不删。</translation>
    </message>
    <message>
        <source>End the connection, or give it up.</source>
        <translation>断开连接或放弃连接。</translation>
    </message>
    <message>
        <source>Export profiles into a file; others that it holds stay.</source>
        <translation>将配置文件导出到文件；其中的其他配置文件保留。</translation>
    </message>
    <message>
        <source>Fields:</source>
        <translation>字段：</translation>
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
        <translation>导入文件中的全部或指定的配置文件。</translation>
    </message>
    <message>
        <source>Keep the user's profiles in this folder.</source>
        <translation>将用户的配置文件保存在此文件夹中。</translation>
    </message>
    <message>
        <source>List all profiles; * marks the default.</source>
        <translation>列出所有配置文件；* 表示默认。</translation>
    </message>
    <message>
        <source>List the modems; * marks the one in use.</source>
        <translation>列出调制解调器；* 表示正在使用。</translation>
    </message>
    <message>
        <source>New PIN again: </source>
        <translation>再次输入新 PIN 码：</translation>
    </message>
    <message>
        <source>New PIN: </source>
        <translation>新 PIN 码：</translation>
    </message>
    <message>
        <source>Open the settings at this page: its title or its plug-in's name.</source>
        <translation>打开设置中的此页面：页面标题或其插件的名称。</translation>
    </message>
    <message>
        <source>PIN (%1): </source>
        <translation>PIN 码（%1）：</translation>
    </message>
    <message>
        <source>PUK (%1): </source>
        <translation>PUK 码（%1）：</translation>
    </message>
    <message>
        <source>Password [as stored]: </source>
        <translation>密码 [已保存的]：</translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Replace a file even if it holds something else than profiles.</source>
        <translation>即使文件中不是配置文件也替换。</translation>
    </message>
    <message>
        <source>Replace profiles whose names exist; without it they are skipped.</source>
        <translation>替换同名的配置文件；否则跳过它们。</translation>
    </message>
    <message>
        <source>Save all profiles of one's own, and the chosen default, in a file.</source>
        <translation>将所有自定义配置文件和所选默认项保存到文件。</translation>
    </message>
    <message>
        <source>See orbisctl COMMAND --help.</source>
        <translation>参见 orbisctl COMMAND --help。</translation>
    </message>
    <message>
        <source>Send a command such as *100# to the network and show its answer.</source>
        <translation>向网络发送 *100# 之类的代码并显示应答。</translation>
    </message>
    <message>
        <source>Show a value of the function configuration, or all.</source>
        <translation>显示功能配置的某个值或全部。</translation>
    </message>
    <message>
        <source>Show each month that is kept.</source>
        <translation>显示保存的每个月。</translation>
    </message>
    <message>
        <source>Show the connection.</source>
        <translation>显示连接。</translation>
    </message>
    <message>
        <source>Show the default profile, or choose it.</source>
        <translation>显示或选择默认配置文件。</translation>
    </message>
    <message>
        <source>Show the fields of profiles.</source>
        <translation>显示配置文件的字段。</translation>
    </message>
    <message>
        <source>Show the modem in use, or choose one by its key, IMEI or port.</source>
        <translation>显示正在使用的调制解调器，或按键值、IMEI 或端口选择。</translation>
    </message>
    <message>
        <source>Show the password too.</source>
        <translation>同时显示密码。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Show this help, or that of a command.</source>
        <translation>显示此帮助或某个命令的帮助。</translation>
    </message>
    <message>
        <source>Show what the SIM card moved this month, or set its limit.</source>
        <translation>显示 SIM 卡本月的流量，或设置其上限。</translation>
    </message>
    <message>
        <source>Show what the modem and its SIM card report, and the connection.</source>
        <translation>显示调制解调器和 SIM 卡报告的信息以及连接。</translation>
    </message>
    <message>
        <source>Speak this language, e.g. "de" or "zh_CN".</source>
        <translation>使用此语言，例如“de”或“zh_CN”。</translation>
    </message>
    <message>
        <source>Spend the last attempt, too.</source>
        <translation>最后一次尝试也可使用。</translation>
    </message>
    <message>
        <source>Start from this profile instead of the template for new ones.</source>
        <translation>以此配置文件为基础，而不用新配置文件的模板。</translation>
    </message>
    <message>
        <source>Start in the desktop's tray, without a window, where there is one.</source>
        <translation>如果有系统托盘，则在其中启动，不显示窗口。</translation>
    </message>
    <message>
        <source>Stay, and hang up on Ctrl-C.</source>
        <translation>保持运行，按 Ctrl-C 时断开。</translation>
    </message>
    <message>
        <source>Stay, and show each change.</source>
        <translation>保持运行，显示每次变化。</translation>
    </message>
    <message>
        <source>Take profiles and default from a backup; those of other names stay.</source>
        <translation>从备份取回配置文件和默认项；其他名称的保留。</translation>
    </message>
    <message>
        <source>Take the choice back.</source>
        <translation>取消所做的选择。</translation>
    </message>
    <message>
        <source>Take the limit away.</source>
        <translation>取消上限。</translation>
    </message>
    <message>
        <source>Tell what is wrong with the shipped files, or with these.</source>
        <translation>指出随附文件或这些文件中的错误。</translation>
    </message>
    <message>
        <source>Tell which presets SIM cards select; - reads IMSIs from standard input.</source>
        <translation>说明 SIM 卡会选定哪些预设；- 从标准输入读取 IMSI。</translation>
    </message>
    <message>
        <source>This is a simulated modem.</source>
        <translation>这是模拟调制解调器。</translation>
    </message>
    <message>
        <source>Unlock the SIM card with its PUK and set a new PIN, a line each.</source>
        <translation>用 PUK 码解锁 SIM 卡并设置新 PIN 码，各占一行。</translation>
    </message>
    <message>
        <source>Unlock the SIM card; the PIN is asked for, or read from standard input.</source>
        <translation>解锁 SIM 卡；PIN 码会询问，或从标准输入读取。</translation>
    </message>
    <message>
        <source>Use this modem: %1.</source>
        <translation>使用此调制解调器：%1。</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>用户名 [%1]：</translation>
    </message>
    <message>
        <source>Wait no longer than so many seconds.</source>
        <translation>最多等待这么多秒。</translation>
    </message>
    <message>
        <source>Warn at 80 and 100 percent of so much a month, such as 500MB or 1.5GB.</source>
        <translation>达到每月此流量的百分之 80 和 100 时警告，例如 500MB 或 1.5GB。</translation>
    </message>
    <message>
        <source>What the SIM cards call their operator.</source>
        <translation>SIM 卡对其运营商的称呼。</translation>
    </message>
    <message>
        <source>Whether the window connects with a profile by itself.</source>
        <translation>窗口是否自动使用某个配置文件连接。</translation>
    </message>
    <message>
        <source>While roaming, too.</source>
        <translation>漫游时也连接。</translation>
    </message>
    <message>
        <source>Write a picture of the window as a PNG file, and end.</source>
        <translation>将窗口图片写入 PNG 文件，然后退出。</translation>
    </message>
    <message>
        <source>Write results as JSON, one object a line.</source>
        <translation>以 JSON 输出结果，每行一个对象。</translation>
    </message>
    <message>
        <source>Write results as fields between tabs, for scripts.</source>
        <translation>以制表符分隔的字段输出结果，供脚本使用。</translation>
    </message>
    <message>
        <source>Write these fields only, in this order; their names are those of --json.</source>
        <translation>只按此顺序输出这些字段；名称与 --json 相同。</translation>
    </message>
    <message>
        <source>Write traces to standard error.</source>
        <translation>将跟踪信息写到标准错误输出。</translation>
    </message>
    <message>
        <source>a PIN has 4 to 8 digits</source>
        <translation>PIN 码为 4 到 8 位数字</translation>
    </message>
    <message>
        <source>a PUK has 8 digits</source>
        <translation>PUK 码为 8 位数字</translation>
    </message>
    <message>
        <source>a picture is taken without a file to import</source>
        <translation>截取窗口图片时不能指定要导入的文件</translation>
    </message>
    <message>
        <source>an IPv4 address, or nothing</source>
        <translation>IPv4 地址或留空</translation>
    </message>
    <message>
        <source>an argument is not FIELD=VALUE; fields: %1</source>
        <translation>有参数不是 字段=值 的形式；字段：%1</translation>
    </message>
    <message>
        <source>an option's value is empty</source>
        <translation>选项的值为空</translation>
    </message>
    <message>
        <source>argument %1 is not UTF-8</source>
        <translation>第 %1 个参数不是 UTF-8</translation>
    </message>
    <message>
        <source>attempts left: %1</source>
        <translation>剩余尝试次数：%1</translation>
    </message>
    <message>
        <source>attempts to unlock</source>
        <translation>剩余解锁次数</translation>
    </message>
    <message>
        <source>automatically</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>backend</source>
        <translation>后端</translation>
    </message>
    <message>
        <source>by the card's operator name %1: %2</source>
        <translation>按卡的运营商名称 %1：%2</translation>
    </message>
    <message>
        <source>can't be dialled with</source>
        <translation>不能用于拨号</translation>
    </message>
    <message>
        <source>can't write the picture %1</source>
        <translation>无法写入图片 %1</translation>
    </message>
    <message>
        <source>no limit is set</source>
        <translation>未设置上限</translation>
    </message>
    <message>
        <source>no window can be opened: %1</source>
        <translation>无法打开窗口：%1</translation>
    </message>
    <message>
        <source>card</source>
        <translation>卡</translation>
    </message>
    <message>
        <source>card mode (2 is CDMA)</source>
        <translation>卡模式（2 为 CDMA）</translation>
    </message>
    <message>
        <source>card's operator</source>
        <translation>卡的运营商</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>chosen, not plugged in</source>
        <translation>已选择，未插入</translation>
    </message>
    <message>
        <source>complete is for the shells' completions</source>
        <translation>complete 供 shell 的自动补全使用</translation>
    </message>
    <message>
        <source>config takes one key; see config --check</source>
        <translation>config 只带一个键；参见 config --check</translation>
    </message>
    <message>
        <source>connected: %1</source>
        <translation>已连接：%1</translation>
    </message>
    <message>
        <source>connecting: %1: %2</source>
        <translation>正在连接：%1：%2</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>customise name</source>
        <translation>定制名称</translation>
    </message>
    <message>
        <source>data-service user</source>
        <translation>数据服务用户</translation>
    </message>
    <message>
        <source>default takes a name or --clear, not both</source>
        <translation>default 只能带名称或 --clear 之一</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>dials as CDMA</source>
        <translation>以 CDMA 拨号</translation>
    </message>
    <message>
        <source>disconnected: %1</source>
        <translation>已断开：%1</translation>
    </message>
    <message>
        <source>disconnecting: %1</source>
        <translation>正在断开：%1</translation>
    </message>
    <message>
        <source>export takes names or --all</source>
        <translation>export 需要名称或 --all</translation>
    </message>
    <message>
        <source>exported %1 to %2</source>
        <translation>已将 %1 导出到 %2</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>generation</source>
        <translation>网络代</translation>
    </message>
    <message>
        <source>home</source>
        <translation>归属网络</translation>
    </message>
    <message>
        <source>how %1 tells a balance is not known; see orbisctl ussd CODE</source>
        <translation>不知道 %1 如何告知余额；参见 orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>how many attempts are left is not known</source>
        <translation>剩余尝试次数未知</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>imported %1</source>
        <translation>已导入 %1</translation>
    </message>
    <message>
        <source>letters, digits, dots and hyphens</source>
        <translation>字母、数字、点和连字符</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>matched IMSI prefix</source>
        <translation>匹配的 IMSI 前缀</translation>
    </message>
    <message>
        <source>model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>调制解调器</translation>
    </message>
    <message>
        <source>multi-mode card</source>
        <translation>多模卡</translation>
    </message>
    <message>
        <source>neither the profile nor the SIM card tells the operator; see orbisctl ussd CODE</source>
        <translation>从配置文件和 SIM 卡都无法得知运营商；参见 orbisctl ussd CODE</translation>
    </message>
    <message>
        <source>network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>network's code</source>
        <translation>网络代码</translation>
    </message>
    <message>
        <source>new name</source>
        <translation>新名称</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>no command is given; see orbisctl --help</source>
        <translation>未指定命令；参见 orbisctl --help</translation>
    </message>
    <message>
        <source>no connection in time</source>
        <translation>未能及时建立连接</translation>
    </message>
    <message>
        <source>no event counter can be had: %1</source>
        <translation>无法获得事件计数器：%1</translation>
    </message>
    <message>
        <source>no language "%1"; there are: %2</source>
        <translation>没有语言“%1”；可用的有：%2</translation>
    </message>
    <message>
        <source>no page "%1"; there are: %2</source>
        <translation>没有页面“%1”；可用的有：%2</translation>
    </message>
    <message>
        <source>no temporary folder: %1</source>
        <translation>没有临时文件夹：%1</translation>
    </message>
    <message>
        <source>no-modem</source>
        <translation>无调制解调器</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>not connected: %1</source>
        <translation>未连接：%1</translation>
    </message>
    <message>
        <source>not connected; the modem is in use by %1</source>
        <translation>未连接；调制解调器正由 %1 使用</translation>
    </message>
    <message>
        <source>note</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>nothing can tell of connections</source>
        <translation>无法获得连接信息</translation>
    </message>
    <message>
        <source>nothing can tell of modems</source>
        <translation>无法获得调制解调器信息</translation>
    </message>
    <message>
        <source>nothing has been counted yet</source>
        <translation>尚无任何流量记录</translation>
    </message>
    <message>
        <source>nothing was imported from %1</source>
        <translation>没有从 %1 导入任何内容</translation>
    </message>
    <message>
        <source>nothing was sent: %1 tells a balance by message or phone alone</source>
        <translation>未发送任何内容：%1 只通过短信或电话告知余额</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>on, roaming too</source>
        <translation>开，漫游时也自动连接</translation>
    </message>
    <message>
        <source>only one of these goes at a time: %1</source>
        <translation>以下选项每次只能使用一个：%1</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>others can read a password on the command line in the list of processes; use password=-</source>
        <translation>命令行上的密码会被他人在进程列表中看到；请使用 password=-</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>本机号码</translation>
    </message>
    <message>
        <source>password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>password: only Latin-1 characters can be stored sealed</source>
        <translation>password：只有 Latin-1 字符才能加密保存</translation>
    </message>
    <message>
        <source>pin</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>present</source>
        <translation>已插入</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>preset, default</source>
        <translation>预设，默认</translation>
    </message>
    <message>
        <source>product type (1 is CDMA)</source>
        <translation>产品类型（1 为 CDMA）</translation>
    </message>
    <message>
        <source>profiles restored: %1</source>
        <translation>已恢复的配置文件数：%1</translation>
    </message>
    <message>
        <source>profiles saved to %1: %2</source>
        <translation>已保存到 %1 的配置文件数：%2</translation>
    </message>
    <message>
        <source>proposed default</source>
        <translation>建议的默认</translation>
    </message>
    <message>
        <source>proposed for</source>
        <translation>建议对象</translation>
    </message>
    <message>
        <source>puk</source>
        <translation>PUK</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>registration</source>
        <translation>网络注册</translation>
    </message>
    <message>
        <source>replaced %1</source>
        <translation>已替换 %1</translation>
    </message>
    <message>
        <source>roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>same     %1</source>
        <translation>%1 未变</translation>
    </message>
    <message>
        <source>say on or off, not %1</source>
        <translation>请指定 on 或 off，而不是 %1</translation>
    </message>
    <message>
        <source>searching</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>signal in percent</source>
        <translation>信号百分比</translation>
    </message>
    <message>
        <source>skipped  %1 (exists; see --replace)</source>
        <translation>已跳过 %1（已存在；参见 --replace）</translation>
    </message>
    <message>
        <source>standard input can't be read</source>
        <translation>无法读取标准输入</translation>
    </message>
    <message>
        <source>standard input can't be read: %1</source>
        <translation>无法读取标准输入：%1</translation>
    </message>
    <message>
        <source>starting</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <source>state</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>状态 %1</translation>
    </message>
    <message>
        <source>status (3 is ready)</source>
        <translation>状态（3 为就绪）</translation>
    </message>
    <message>
        <source>system mode</source>
        <translation>系统模式</translation>
    </message>
    <message>
        <source>system sub-mode</source>
        <translation>系统子模式</translation>
    </message>
    <message>
        <source>takes USSD commands</source>
        <translation>支持 USSD 代码</translation>
    </message>
    <message>
        <source>technology</source>
        <translation>技术</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>the backup can't be read</source>
        <translation>无法读取备份</translation>
    </message>
    <message>
        <source>the card asks for its %1; see orbisctl %2</source>
        <translation>卡需要 %1 码；参见 orbisctl %2</translation>
    </message>
    <message>
        <source>the card asks for no %1</source>
        <translation>卡不需要 %1 码</translation>
    </message>
    <message>
        <source>the card can't be unlocked</source>
        <translation>无法解锁卡</translation>
    </message>
    <message>
        <source>the card does not answer; whether it took the code is not known</source>
        <translation>卡没有应答；不知道它是否接受了该码</translation>
    </message>
    <message>
        <source>the card is locked in a way that neither PIN nor PUK opens</source>
        <translation>卡的锁定无法用 PIN 码或 PUK 码解除</translation>
    </message>
    <message>
        <source>the card is unlocked</source>
        <translation>卡已解锁</translation>
    </message>
    <message>
        <source>the card takes no code now</source>
        <translation>卡现在不接受该码</translation>
    </message>
    <message>
        <source>the card's operator name %1 tells none of these</source>
        <translation>卡的运营商名称 %1 与这些都不符</translation>
    </message>
    <message>
        <source>the choice can't be kept in the settings</source>
        <translation>无法将此选择保存到设置中</translation>
    </message>
    <message>
        <source>the configuration customised for %1 leaves no presets by IMSI</source>
        <translation>为 %1 定制的配置中没有按 IMSI 的预设</translation>
    </message>
    <message>
        <source>the configuration has no presets by IMSI</source>
        <translation>配置中没有按 IMSI 的预设</translation>
    </message>
    <message>
        <source>the connection can't be ended</source>
        <translation>无法断开连接</translation>
    </message>
    <message>
        <source>the connection has not ended yet</source>
        <translation>连接尚未断开</translation>
    </message>
    <message>
        <source>the connection of %1 is not ours to end</source>
        <translation>%1 的连接不归本程序断开</translation>
    </message>
    <message>
        <source>the connection was ended elsewhere</source>
        <translation>连接已在别处断开</translation>
    </message>
    <message>
        <source>the data folder %1 can't be made or entered</source>
        <translation>无法创建或进入数据文件夹 %1</translation>
    </message>
    <message>
        <source>the data folder %1 is not a folder</source>
        <translation>数据文件夹 %1 不是文件夹</translation>
    </message>
    <message>
        <source>the data volume can't be stored</source>
        <translation>无法保存流量</translation>
    </message>
    <message>
        <source>the default can't be cleared</source>
        <translation>无法清除默认配置文件</translation>
    </message>
    <message>
        <source>the default can't be restored</source>
        <translation>无法恢复默认配置文件</translation>
    </message>
    <message>
        <source>the default can't be set</source>
        <translation>无法设置默认配置文件</translation>
    </message>
    <message>
        <source>the field %1 is given twice</source>
        <translation>字段 %1 指定了两次</translation>
    </message>
    <message>
        <source>the file can't be imported</source>
        <translation>无法导入文件</translation>
    </message>
    <message>
        <source>the file's name is empty</source>
        <translation>文件名为空</translation>
    </message>
    <message>
        <source>the limit can't be stored</source>
        <translation>无法保存上限</translation>
    </message>
    <message>
        <source>the modem does not answer</source>
        <translation>调制解调器没有应答</translation>
    </message>
    <message>
        <source>the modem is not ready for a command, or another one is under way</source>
        <translation>调制解调器尚不能接受代码，或另一个代码正在处理</translation>
    </message>
    <message>
        <source>the modem's backend can't be had</source>
        <translation>调制解调器后端不可用</translation>
    </message>
    <message>
        <source>the name is empty; see default --clear</source>
        <translation>名称为空；参见 default --clear</translation>
    </message>
    <message>
        <source>the network did not answer in time</source>
        <translation>网络未及时应答</translation>
    </message>
    <message>
        <source>the new profile's name is the first argument</source>
        <translation>新配置文件的名称是第一个参数</translation>
    </message>
    <message>
        <source>the password of %1 is not base64, as its encrypttype says; set it again</source>
        <translation>%1 的密码不是其 encrypttype 所述的 base64；请重新设置</translation>
    </message>
    <message>
        <source>the profile can't be added</source>
        <translation>无法添加配置文件</translation>
    </message>
    <message>
        <source>the profile can't be changed</source>
        <translation>无法更改配置文件</translation>
    </message>
    <message>
        <source>the profile can't be deleted</source>
        <translation>无法删除配置文件</translation>
    </message>
    <message>
        <source>the profile library does not hold the preset %1</source>
        <translation>配置文件库中没有预设 %1</translation>
    </message>
    <message>
        <source>the profiles can't be changed</source>
        <translation>无法更改配置文件</translation>
    </message>
    <message>
        <source>the profiles can't be exported</source>
        <translation>无法导出配置文件</translation>
    </message>
    <message>
        <source>the profiles can't be imported</source>
        <translation>无法导入配置文件</translation>
    </message>
    <message>
        <source>the profiles can't be listed</source>
        <translation>无法列出配置文件</translation>
    </message>
    <message>
        <source>the profiles can't be restored</source>
        <translation>无法恢复配置文件</translation>
    </message>
    <message>
        <source>the profiles can't be stored</source>
        <translation>无法保存配置文件</translation>
    </message>
    <message>
        <source>the session has ended</source>
        <translation>会话已结束</translation>
    </message>
    <message>
        <source>the settings can't be stored</source>
        <translation>无法保存设置</translation>
    </message>
    <message>
        <source>the settings of automatic connection can't be stored</source>
        <translation>无法保存自动连接的设置</translation>
    </message>
    <message>
        <source>the two PINs differ</source>
        <translation>两次输入的 PIN 码不一致</translation>
    </message>
    <message>
        <source>there are no profiles %1</source>
        <translation>没有配置文件 %1</translation>
    </message>
    <message>
        <source>there is a profile %1 already</source>
        <translation>已存在配置文件 %1</translation>
    </message>
    <message>
        <source>there is no SIM card</source>
        <translation>没有 SIM 卡</translation>
    </message>
    <message>
        <source>there is no configuration key %1</source>
        <translation>没有配置项 %1</translation>
    </message>
    <message>
        <source>there is no default profile; name one: orbisctl connect NAME</source>
        <translation>没有默认配置文件；请指定一个：orbisctl connect NAME</translation>
    </message>
    <message>
        <source>there is no field %1; there are: %2</source>
        <translation>没有字段 %1；可用的有：%2</translation>
    </message>
    <message>
        <source>there is no modem</source>
        <translation>没有调制解调器</translation>
    </message>
    <message>
        <source>there is no modem %1; see orbisctl modems</source>
        <translation>没有调制解调器 %1；参见 orbisctl modems</translation>
    </message>
    <message>
        <source>there is no profile %1</source>
        <translation>没有配置文件 %1</translation>
    </message>
    <message>
        <source>there is no profile of one's own</source>
        <translation>没有自己的配置文件</translation>
    </message>
    <message>
        <source>this user may not unlock the card</source>
        <translation>此用户无权解锁卡</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>unexpected argument: %1</source>
        <translation>多余的参数：%1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>unknown command %1; see orbisctl --help</source>
        <translation>未知命令 %1；参见 orbisctl --help</translation>
    </message>
    <message>
        <source>unknown device %1; use one of %2</source>
        <translation>未知设备 %1；可用的有：%2</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>user</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>user name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>user, default</source>
        <translation>自定义，默认</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>what was counted can't be read, or is damaged</source>
        <translation>无法读取流量记录，或记录已损坏</translation>
    </message>
    <message>
        <source>wrong %1: %2</source>
        <translation>%1 码错误：%2</translation>
    </message>
    <message>
        <source>wrong %1: nothing opens the card any more</source>
        <translation>%1 码错误：此卡已无法解锁</translation>
    </message>
    <message>
        <source>wrong %1: the card now asks for its PUK</source>
        <translation>%1 码错误：卡现在要求输入 PUK 码</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1：最多 %2 个字符</translation>
    </message>
    <message>
        <source>%1: control characters can't be stored</source>
        <translation>%1：无法保存控制字符</translation>
    </message>
    <message>
        <source>%1: may hold letters, digits, dots and hyphens</source>
        <translation>%1：可以包含字母、数字、点和连字符</translation>
    </message>
    <message>
        <source>%1: must be empty or an IPv4 address such as 192.0.2.1</source>
        <translation>%1：必须为空或形如 192.0.2.1 的 IPv4 地址</translation>
    </message>
    <message>
        <source>%1: must be true or false</source>
        <translation>%1：必须为 true 或 false</translation>
    </message>
    <message>
        <source>Mobile broadband is switched off</source>
        <translation>移动宽带已关闭</translation>
    </message>
    <message>
        <source>NetworkManager can't use the modem now</source>
        <translation>NetworkManager 目前无法使用调制解调器</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager 没有响应</translation>
    </message>
    <message>
        <source>ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto</source>
        <translation>ORBISDIAL_DEVICE 未指定有效的后端；可用 simulated、modemmanager、none 或 auto</translation>
    </message>
    <message>
        <source>a link in a folder where others may have put it is not followed: %1</source>
        <translation>不跟随可能由他人放入文件夹的链接：%1</translation>
    </message>
    <message>
        <source>a name has at most %1 characters</source>
        <translation>名称最多 %1 个字符</translation>
    </message>
    <message>
        <source>a name must not contain any of %1</source>
        <translation>名称不能包含下列字符：%1</translation>
    </message>
    <message>
        <source>a name must not contain control characters</source>
        <translation>名称不能包含控制字符</translation>
    </message>
    <message>
        <source>a password can't be sealed</source>
        <translation>无法加密密码</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>配置文件需要名称</translation>
    </message>
    <message>
        <source>a profile needs an access number, for example phonenumber=*99#</source>
        <translation>配置文件需要接入号码，例如 phonenumber=*99#</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>某个元素的属性超过 %1 个</translation>
    </message>
    <message>
        <source>another program keeps it locked</source>
        <translation>另一个程序将其锁定</translation>
    </message>
    <message>
        <source>apn: must begin and end with a letter or a digit</source>
        <translation>apn：必须以字母或数字开头和结尾</translation>
    </message>
    <message>
        <source>can't be locked</source>
        <translation>无法锁定</translation>
    </message>
    <message>
        <source>can't be locked: it is not a regular file</source>
        <translation>无法锁定：不是普通文件</translation>
    </message>
    <message>
        <source>can't be looked at</source>
        <translation>无法查看</translation>
    </message>
    <message>
        <source>can't be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>can't be read now; what was last read of it stays in force</source>
        <translation>目前无法读取；以上次读取的内容为准</translation>
    </message>
    <message>
        <source>can't be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>can't be written as XML</source>
        <translation>无法以 XML 写入</translation>
    </message>
    <message>
        <source>can't close</source>
        <translation>无法关闭</translation>
    </message>
    <message>
        <source>can't create a file in the folder</source>
        <translation>无法在文件夹中创建文件</translation>
    </message>
    <message>
        <source>can't enter the folder</source>
        <translation>无法进入文件夹</translation>
    </message>
    <message>
        <source>can't enter the root folder</source>
        <translation>无法进入根文件夹</translation>
    </message>
    <message>
        <source>can't flush to disk</source>
        <translation>无法写入磁盘</translation>
    </message>
    <message>
        <source>can't look at the folder</source>
        <translation>无法查看文件夹</translation>
    </message>
    <message>
        <source>can't read a link</source>
        <translation>无法读取链接</translation>
    </message>
    <message>
        <source>can't replace</source>
        <translation>无法替换</translation>
    </message>
    <message>
        <source>can't set the file's mode</source>
        <translation>无法设置文件的权限</translation>
    </message>
    <message>
        <source>can't set the file's owner</source>
        <translation>无法设置文件的所有者</translation>
    </message>
    <message>
        <source>can't write</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>elements stand more than %1 deep in one another</source>
        <translation>元素嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>every name for a copy of the damaged file is taken</source>
        <translation>损坏文件副本的名称均已被占用</translation>
    </message>
    <message>
        <source>is damaged, and can't be kept: %1</source>
        <translation>已损坏，且无法保留：%1</translation>
    </message>
    <message>
        <source>is no file's name</source>
        <translation>不是文件名</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>it is too large: %1 of at most %2 MB</source>
        <translation>过大：%1 MB，最多 %2 MB</translation>
    </message>
    <message>
        <source>leads to no file</source>
        <translation>未指向任何文件</translation>
    </message>
    <message>
        <source>not written: it would be too large to be read again, %1 of at most %2 MB</source>
        <translation>未写入：过大而无法再读取，%1 MB，最多 %2 MB</translation>
    </message>
    <message>
        <source>other programs make and remove it all the time</source>
        <translation>其他程序不断创建又删除它</translation>
    </message>
    <message>
        <source>profiles can't be exported to this file</source>
        <translation>不能将配置文件导出到此文件</translation>
    </message>
    <message>
        <source>reading failed</source>
        <translation>读取失败</translation>
    </message>
    <message>
        <source>the XML declaration is too long</source>
        <translation>XML 声明过长</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: %2</source>
        <translation>无法加载后端“%1”：%2</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: it belongs to another version</source>
        <translation>无法加载后端“%1”：它属于另一个版本</translation>
    </message>
    <message>
        <source>the device backend "%1" can't be loaded: there is no %2</source>
        <translation>无法加载后端“%1”：没有 %2</translation>
    </message>
    <message>
        <source>the device backend can't start</source>
        <translation>调制解调器后端无法启动</translation>
    </message>
    <message>
        <source>the document type declares entities or attributes</source>
        <translation>文档类型声明了实体或属性</translation>
    </message>
    <message>
        <source>the output can't be written: %1</source>
        <translation>无法写出输出：%1</translation>
    </message>
    <message>
        <source>the process was made by one that uses the modem</source>
        <translation>本进程由正在使用调制解调器的进程创建</translation>
    </message>
    <message>
        <source>the sealed password of "%1" was changed outside and can't be opened</source>
        <translation>“%1”的加密密码被外部修改，无法解密</translation>
    </message>
    <message>
        <source>the user data directory can't be had</source>
        <translation>用户数据文件夹不可用</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>元素超过 %1 个</translation>
    </message>
    <message>
        <source>there are more than %1 namespaces</source>
        <translation>命名空间超过 %1 个</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>was damaged (%1); the damaged file is kept as %2</source>
        <translation>已损坏（%1）；损坏的文件保留为 %2</translation>
    </message>
    <message>
        <source>was removed while the profiles were being changed</source>
        <translation>在更改配置文件期间被删除</translation>
    </message>
    <message>
        <source>written, but the folder can't be flushed to disk</source>
        <translation>已写入，但无法将文件夹写入磁盘</translation>
    </message>
</context>
</TS>
